#include "features/FeatureInformation.h"

#include "features/FeatureReading.h"
#include "features/SdkValues.h"

using FeatureReading::readDataType;
using FeatureReading::readText;

namespace {

QString descriptionText(const QString& description)
{
    if (description.isEmpty())
        return QStringLiteral("N/A<br/>");
    QString text = description;
    text.replace(QLatin1Char('.'), QLatin1String(".<br/>"), Qt::CaseSensitive);
    return QLatin1String("<br/>") + text;
}

QString visibilityText(ZebFeatureWrapper& feature)
{
    auto visibility = Sdk::unknownVisibility;
    if (feature.GetVisibility(visibility) != Sdk::success)
        visibility = Sdk::unknownVisibility;
    switch (visibility) {
    case Sdk::unknownVisibility:
        return QStringLiteral("UNKNOWN<br/>");
    case Sdk::beginner:
        return QStringLiteral("BEGINNER<br/>");
    case Sdk::expert:
        return QStringLiteral("EXPERT<br/>");
    case Sdk::guru:
        return QStringLiteral("GURU<br/>");
    case Sdk::invisible:
        return QStringLiteral("INVISIBLE<br/>");
    }
    return QStringLiteral("N/A<br/>");
}

QString typeText(const QString& typeName)
{
    return QLatin1String("<b>Type:</b> ") + typeName + QLatin1String("<br/>");
}

QString rangeText(const QString& typeName, const QString& minimum, const QString& maximum)
{
    return typeText(typeName) + QLatin1String("<b>Minimum:</b> ") + minimum
        + QLatin1String("<br/><b>Maximum:</b> ") + maximum + QLatin1String("<br/>");
}

QString intervalText(const QString& increment)
{
    return QLatin1String("<b>Interval:</b> ") + increment + QLatin1String("<br/>");
}

QString integerText(ZebFeatureWrapper& feature)
{
    QString text;
    int64_t minimum = 0;
    int64_t maximum = 0;
    if (feature.GetRange(minimum, maximum) == Sdk::success)
        text += rangeText(QStringLiteral("Integer"), QString::number(qlonglong{minimum}),
                          QString::number(qlonglong{maximum}));
    int64_t increment = 0;
    if (feature.GetIncrement(increment) == Sdk::success && increment != 1)
        text += intervalText(QString::number(qlonglong{increment}));
    return text;
}

// The two precisions differ; users compare these texts with those of other tools.
QString floatText(ZebFeatureWrapper& feature)
{
    QString text;
    double minimum = 0.0;
    double maximum = 0.0;
    if (feature.GetRange(minimum, maximum) == Sdk::success)
        text += rangeText(QStringLiteral("Float"), QString::number(minimum, 'g', 9),
                          QString::number(maximum, 'g', 12));
    double increment = 0.0;
    if (feature.GetIncrement(increment) == Sdk::success)
        text += intervalText(QString::number(increment, 'f', 10));
    return text;
}

// Told of what is written or changes by itself, or is readable and nothing else.
bool hasRangeAccess(ZebFeatureWrapper& feature)
{
    ZebFeatureFlagsType flags{};
    return feature.GetFlags(flags) == Sdk::success
        && ((flags & Sdk::writeOrVolatileFlags) != 0 || flags == Sdk::readFlag);
}

QString dataTypeText(ZebFeatureWrapper& feature)
{
    switch (readDataType(feature)) {
    case Sdk::integerType:
        return hasRangeAccess(feature) ? integerText(feature) : QString();
    case Sdk::floatType:
        return hasRangeAccess(feature) ? floatText(feature) : QString();
    case Sdk::enumerationType:
        return typeText(QStringLiteral("Enumeration"));
    case Sdk::stringType:
        return typeText(QStringLiteral("String"));
    case Sdk::booleanType:
        return typeText(QStringLiteral("Boolean"));
    case Sdk::commandType:
        return typeText(QStringLiteral("Command"));
    case Sdk::rawType:
        return typeText(QStringLiteral("Raw"));
    default:
        return {};
    }
}

} // namespace

QString featureInformation(ZebFeatureWrapper& feature)
{
    const QString description = readText(feature, &ZebFeatureWrapper::GetDescription);
    const QString information = QLatin1String("<b>Feature Name:</b> ")
        + readText(feature, &ZebFeatureWrapper::GetName) + QLatin1String("<br/><b>Visibility:</b> ")
        + visibilityText(feature) + dataTypeText(feature) + QLatin1String("<b>Category:</b> ")
        + readText(feature, &ZebFeatureWrapper::GetCategory) + QLatin1String("<br/>");
    return QStringLiteral("<b>Feature Description:</b> %1<br/>%2")
        .arg(descriptionText(description), information);
}

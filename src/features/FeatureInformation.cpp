#include "features/FeatureInformation.h"

#include "features/FeatureReader.h"
#include "features/SdkValues.h"

#include <array>

namespace {

constexpr int limits = FeatureReader::Range | FeatureReader::Increment;

QString descriptionText(const QString& description)
{
    if (description.isEmpty())
        return QStringLiteral("N/A<br/>");
    QString text = description;
    text.replace(QLatin1Char('.'), QLatin1String(".<br/>"), Qt::CaseSensitive);
    return QLatin1String("<br/>") + text;
}

constexpr std::array visibilityNames{"UNKNOWN", "BEGINNER", "EXPERT", "GURU", "INVISIBLE"};
constexpr std::array typeNames{"",       "Integer", "Float",   "Enumeration",
                               "String", "Boolean", "Command", "Raw"};

template <std::size_t count>
QString nameOf(int number, const std::array<const char*, count>& names, const char* other)
{
    const bool isNamed = number >= 0 && number < static_cast<int>(count);
    return QLatin1String(isNamed ? names[static_cast<std::size_t>(number)] : other);
}

QString visibilityText(FeatureReader& feature)
{
    auto visibility = Sdk::unknownVisibility;
    if (feature->GetVisibility(visibility) != Sdk::success)
        visibility = Sdk::unknownVisibility;
    return nameOf(visibility, visibilityNames, "N/A") + QLatin1String("<br/>");
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

QString integerText(FeatureReader& feature)
{
    const Reading<int64_t> reading = feature.read<int64_t>(limits);
    QString text;
    if (reading.minimum)
        text += rangeText(QStringLiteral("Integer"), QString::number(qlonglong{*reading.minimum}),
                          QString::number(qlonglong{*reading.maximum}));
    if (reading.increment.value_or(1) != 1)
        text += intervalText(QString::number(qlonglong{*reading.increment}));
    return text;
}

// The two precisions differ; users compare these texts with those of other tools.
QString floatText(FeatureReader& feature)
{
    const Reading<double> reading = feature.read<double>(limits);
    QString text;
    if (reading.minimum)
        text += rangeText(QStringLiteral("Float"), QString::number(*reading.minimum, 'g', 9),
                          QString::number(*reading.maximum, 'g', 12));
    if (reading.increment)
        text += intervalText(QString::number(*reading.increment, 'f', 10));
    return text;
}

// Told of what is written or changes by itself, or is readable and nothing else.
bool hasRangeAccess(FeatureReader& feature)
{
    ZebFeatureFlagsType flags{};
    return feature->GetFlags(flags) == Sdk::success
        && ((flags & Sdk::writeOrVolatileFlags) != 0 || flags == Sdk::readFlag);
}

QString dataTypeText(FeatureReader& feature)
{
    const ZebFeatureDataType type = feature.dataType();
    if (type == Sdk::integerType)
        return hasRangeAccess(feature) ? integerText(feature) : QString();
    if (type == Sdk::floatType)
        return hasRangeAccess(feature) ? floatText(feature) : QString();
    const QString name = nameOf(type, typeNames, "");
    return name.isEmpty() ? QString() : typeText(name);
}

} // namespace

QString featureInformation(FeatureReader& feature)
{
    const QString description = feature.text(&ZebFeatureWrapper::GetDescription);
    const QString information = QLatin1String("<b>Feature Name:</b> ")
        + feature.text(&ZebFeatureWrapper::GetName) + QLatin1String("<br/><b>Visibility:</b> ")
        + visibilityText(feature) + dataTypeText(feature) + QLatin1String("<b>Category:</b> ")
        + feature.text(&ZebFeatureWrapper::GetCategory) + QLatin1String("<br/>");
    return QStringLiteral("<b>Feature Description:</b> %1<br/>%2")
        .arg(descriptionText(description), information);
}

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
    return QLatin1String("<br/>")
        + QString(description).replace(QLatin1Char('.'), QLatin1String(".<br/>"));
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
    const bool isTold = feature->GetVisibility(visibility) == Sdk::success;
    return nameOf(isTold ? visibility : 0, visibilityNames, "N/A") + QLatin1String("<br/>");
}

QString typeText(const QString& typeName)
{
    return QLatin1String("<b>Type:</b> ") + typeName + QLatin1String("<br/>");
}

/// What is not told is empty.
QString limitsText(const QString& typeName, const QString& minimum, const QString& maximum,
                   const QString& increment)
{
    QString text;
    if (!minimum.isEmpty())
        text += typeText(typeName) + QLatin1String("<b>Minimum:</b> ") + minimum
            + QLatin1String("<br/><b>Maximum:</b> ") + maximum + QLatin1String("<br/>");
    if (!increment.isEmpty())
        text += QLatin1String("<b>Interval:</b> ") + increment + QLatin1String("<br/>");
    return text;
}

QString integerText(FeatureReader& feature)
{
    const auto reading = feature.read<int64_t>(limits);
    const auto text = [](const std::optional<int64_t>& number) {
        return number ? QString::number(qlonglong{*number}) : QString();
    };
    return limitsText(QStringLiteral("Integer"), text(reading.minimum), text(reading.maximum),
                      reading.increment == 1 ? QString() : text(reading.increment));
}

// The two precisions of the range differ; users compare these texts with those of other tools.
QString floatText(FeatureReader& feature)
{
    const auto reading = feature.read<double>(limits);
    const auto text = [](const std::optional<double>& number, char format, int precision) {
        return number ? QString::number(*number, format, precision) : QString();
    };
    return limitsText(QStringLiteral("Float"), text(reading.minimum, 'g', 9),
                      text(reading.maximum, 'g', 12), text(reading.increment, 'f', 10));
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

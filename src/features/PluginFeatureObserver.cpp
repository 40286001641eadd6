#include "features/PluginFeatureObserver.h"

#include "features/SdkValues.h"
#include "features/TwoCallPattern.h"

namespace {

// Reads one type of value and formats it; empty when the camera does not give it.
template <typename Value, typename Format>
QString formatValue(ZebCPP::Feature& feature, Format&& format)
{
    Value value{};
    return feature.GetValue(value) == Sdk::success ? format(value) : QString();
}

QString stringValue(ZebCPP::Feature& feature)
{
    std::string text;
    const auto fetch
        = [&feature](char* buffer, uint32_t& length) { return feature.GetValue(buffer, length); };
    return TwoCallPattern::read(text, fetch) == Sdk::success ? QString::fromStdString(text)
                                                             : QString();
}

QString valueText(ZebCPP::Feature& feature, ZebFeatureDataType type)
try {
    switch (type) {
    case Sdk::integerType:
        return formatValue<int64_t>(feature, [](int64_t value) {
            return QString::number(static_cast<qlonglong>(value), 10);
        });
    case Sdk::floatType:
        return formatValue<double>(feature,
                                   [](double value) { return QString::number(value, 'g', 6); });
    case Sdk::enumerationType:
    case Sdk::stringType:
        return stringValue(feature);
    case Sdk::booleanType:
        return formatValue<bool>(feature, [](bool value) {
            return value ? QStringLiteral("true") : QStringLiteral("false");
        });
    case Sdk::commandType:
        return QStringLiteral("[COMMAND]");
    case Sdk::rawType:
        return QStringLiteral("Click here to open");
    default:
        return {};
    }
} catch (...) {
    return {}; // that it changed is told all the same
}

} // namespace

void PluginFeatureObserver::FeatureChanged(const ZebCPP::FeaturePtr& feature)
try {
    if (!feature)
        return;
    std::string name;
    const auto fetchName
        = [&feature](char* buffer, uint32_t& length) { return feature->GetName(buffer, length); };
    if (TwoCallPattern::read(name, fetchName) != Sdk::success)
        return;
    auto type = Sdk::unknownType;
    if (feature->GetDataType(type) != Sdk::success)
        return;

    emit setChangedFeature(QString::fromStdString(name), valueText(*feature, type));
} catch (...) {
    // The SDK called, from a thread of its own: what its reads throw is not to come back to it.
}

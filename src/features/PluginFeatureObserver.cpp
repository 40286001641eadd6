#include "features/PluginFeatureObserver.h"

#include "features/SdkValues.h"
#include "features/TwoCallPattern.h"

namespace {

bool isTold(ZebErrorType result)
{
    return result == Sdk::success;
}

/// Empty when the camera does not give the value.
QString valueText(ZebCPP::Feature& feature, ZebFeatureDataType type)
try {
    std::int64_t integer = 0;
    double number = 0.0;
    bool flag = false;
    std::string text;
    const auto fetch
        = [&](char* buffer, uint32_t& length) { return feature.GetValue(buffer, length); };
    switch (type) {
    case Sdk::integerType:
        return isTold(feature.GetValue(integer)) ? QString::number(qlonglong{integer}) : QString();
    case Sdk::floatType:
        return isTold(feature.GetValue(number)) ? QString::number(number, 'g', 6) : QString();
    case Sdk::enumerationType:
    case Sdk::stringType:
        return isTold(TwoCallPattern::read(text, fetch)) ? QString::fromStdString(text) : QString();
    case Sdk::booleanType:
        if (!isTold(feature.GetValue(flag)))
            return {};
        return flag ? QStringLiteral("true") : QStringLiteral("false");
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
    auto type = Sdk::unknownType;
    if (isTold(TwoCallPattern::read(name, fetchName)) && isTold(feature->GetDataType(type)))
        emit setChangedFeature(QString::fromStdString(name), valueText(*feature, type));
} catch (...) {
    // The SDK called, from a thread of its own: what its reads throw is not to come back to it.
}

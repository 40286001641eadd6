#include "features/ZebFeatureWrapper.h"

#include <limits>
#include <utility>

ZebFeatureWrapper::~ZebFeatureWrapper() = default;

ZebErrorType ZebFeatureWrapper::GetValue(std::vector<uint8_t>& value, uint32_t& sizeFilled)
{
    return forward([&](Raw& sdk) {
        const auto get = [&](uint8_t* buffer, uint32_t capacity, uint32_t& filled) {
            return sdk.GetValue(buffer, capacity, filled);
        };
        const ZebErrorType result = TwoCallPattern::readList(value, get);
        if (result == Sdk::success)
            sizeFilled = static_cast<uint32_t>(value.size());
        return result;
    });
}

ZebErrorType ZebFeatureWrapper::GetValue(std::vector<uint8_t>& value)
{
    uint32_t sizeFilled = 0;
    return GetValue(value, sizeFilled);
}

ZebErrorType ZebFeatureWrapper::GetValue(std::string& value)
{
    const ZebErrorType result
        = fetch(value, [](Raw& sdk, auto&&... to) { return sdk.GetValue(to...); });
    if (result != Sdk::success)
        value.clear();
    return result;
}

ZebErrorType ZebFeatureWrapper::GetValues(std::vector<std::string>& values)
{
    return forward([&](Raw& sdk) {
        std::vector<const char*> texts;
        const auto get
            = [&](const char** items, uint32_t& count) { return sdk.GetValues(items, count); };
        const ZebErrorType result = TwoCallPattern::read(texts, get);
        if (result == Sdk::success) {
            std::vector<std::string> copies;
            copies.reserve(texts.size());
            for (const char* text : texts)
                copies.emplace_back(text ? text : "");
            values = std::move(copies);
        }
        return result;
    });
}

ZebErrorType ZebFeatureWrapper::GetValues(std::vector<int64_t>& values)
{
    return fetch(values, [](Raw& sdk, auto&&... to) { return sdk.GetValues(to...); });
}

ZebErrorType ZebFeatureWrapper::GetEntries(std::vector<ZebCPP::EnumEntry>& entries)
{
    return fetch(entries, [](Raw& sdk, auto&&... to) { return sdk.GetEntries(to...); });
}

ZebErrorType ZebFeatureWrapper::SetValue(const std::vector<uint8_t>& value)
{
    if (value.empty() || value.size() > std::numeric_limits<uint32_t>::max())
        return Sdk::badParameter;
    return forward(
        [&](Raw& sdk) { return sdk.SetValue(value.data(), static_cast<uint32_t>(value.size())); });
}

ZebErrorType ZebFeatureWrapper::GetSelectedFeatures(std::vector<ZebCPP::FeaturePtr>& features)
{
    return fetch(features, [](Raw& sdk, auto&&... to) { return sdk.GetSelectedFeatures(to...); });
}

ZebErrorType ZebFeatureWrapper::GetValidValueSet(std::vector<int64_t>& values)
{
    return forward([&](Raw& sdk) {
        const auto get = [&](int64_t* buffer, uint32_t capacity, uint32_t& count) {
            return sdk.GetValidValueSet(buffer, capacity, &count);
        };
        return TwoCallPattern::readList(values, get);
    });
}

#include "features/ZebFeatureWrapper.h"

#include "features/SdkValues.h"
#include "features/TwoCallPattern.h"

#include <algorithm>
#include <limits>
#include <utility>

ZebFeatureWrapper::~ZebFeatureWrapper() = default;

ZebErrorType ZebFeatureWrapper::readText(TextGetter getter, std::string& text)
{
    return forward([&](ZebCPP::Feature& feature) {
        return TwoCallPattern::readText(text, [&](char* buffer, uint32_t& length) {
            return (feature.*getter)(buffer, length);
        });
    });
}

ZebErrorType ZebFeatureWrapper::GetValue(std::vector<uint8_t>& value, uint32_t& sizeFilled)
{
    return forward([&](ZebCPP::Feature& feature) {
        const auto fetch = [&feature](uint8_t* buffer, uint32_t capacity, uint32_t& filled) {
            return feature.GetValue(buffer, capacity, filled);
        };
        const ZebErrorType result
            = TwoCallPattern::readList(value, TwoCallPattern::maximumRawBytes, fetch);
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
    const ZebErrorType result = readText(&ZebCPP::Feature::GetValue, value);
    if (result != Sdk::success)
        value.clear();
    return result;
}

ZebErrorType ZebFeatureWrapper::GetValues(std::vector<std::string>& values)
{
    return forward([&](ZebCPP::Feature& feature) {
        std::vector<const char*> texts;
        const ZebErrorType result
            = TwoCallPattern::readList(texts, [&](const char** items, uint32_t& count) {
                  return feature.GetValues(items, count);
              });
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
    return forward([&](ZebCPP::Feature& feature) {
        return TwoCallPattern::readList(values, [&](int64_t* items, uint32_t& count) {
            return feature.GetValues(items, count);
        });
    });
}

ZebErrorType ZebFeatureWrapper::GetEntries(std::vector<ZebCPP::EnumEntry>& entries)
{
    return forward([&](ZebCPP::Feature& feature) {
        return TwoCallPattern::readList(entries, [&](ZebCPP::EnumEntry* items, uint32_t& count) {
            return feature.GetEntries(items, count);
        });
    });
}

ZebErrorType ZebFeatureWrapper::SetValue(const std::vector<uint8_t>& value)
{
    if (value.empty() || value.size() > std::numeric_limits<uint32_t>::max())
        return Sdk::badParameter;
    return forward([&](auto& feature) {
        return feature.SetValue(value.data(), static_cast<uint32_t>(value.size()));
    });
}

ZebErrorType ZebFeatureWrapper::GetSelectedFeatures(std::vector<ZebCPP::FeaturePtr>& features)
{
    return forward([&](ZebCPP::Feature& feature) {
        return TwoCallPattern::readList(features, [&](ZebCPP::FeaturePtr* items, uint32_t& count) {
            return feature.GetSelectedFeatures(items, count);
        });
    });
}

ZebErrorType ZebFeatureWrapper::GetValidValueSet(std::vector<int64_t>& values)
{
    return forward([&](ZebCPP::Feature& feature) {
        const auto fetch = [&feature](int64_t* buffer, uint32_t capacity, uint32_t& count) {
            return feature.GetValidValueSet(buffer, capacity, &count);
        };
        return TwoCallPattern::readList(values, TwoCallPattern::maximumListItems<int64_t>, fetch);
    });
}

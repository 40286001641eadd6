#include "features/ZebFeatureWrapper.h"

#include "features/SdkValues.h"
#include "features/TwoCallPattern.h"

#include <algorithm>
#include <limits>
#include <utility>

ZebFeatureWrapper::ZebFeatureWrapper(const ZebCPP::FeaturePtr& feature)
    : m_feature(feature)
{
}

ZebFeatureWrapper::~ZebFeatureWrapper() = default;

// The SDK is foreign code: neither an exception of its own nor a feature that was handed over as a
// null pointer may leave these operations in any way but as a result code.
template <typename Call> ZebErrorType ZebFeatureWrapper::forward(Call&& call) noexcept
try {
    return m_feature ? call(*m_feature) : Sdk::badHandle;
} catch (...) {
    return Sdk::resources;
}

ZebErrorType ZebFeatureWrapper::readText(TextGetter getter, std::string& text)
{
    return forward([&](ZebCPP::Feature& feature) {
        return TwoCallPattern::readText(text, [&](char* buffer, uint32_t& length) {
            return (feature.*getter)(buffer, length);
        });
    });
}

ZebCPP::FeaturePtr& ZebFeatureWrapper::GetFeature()
{
    return m_feature;
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

ZebErrorType ZebFeatureWrapper::GetValue(bool& value)
{
    return forward([&](auto& feature) { return feature.GetValue(value); });
}

ZebErrorType ZebFeatureWrapper::GetValue(std::string& value)
{
    const ZebErrorType result = readText(&ZebCPP::Feature::GetValue, value);
    if (result != Sdk::success)
        value.clear();
    return result;
}

ZebErrorType ZebFeatureWrapper::GetValue(double& value)
{
    return forward([&](auto& feature) { return feature.GetValue(value); });
}

ZebErrorType ZebFeatureWrapper::GetValue(int64_t& value)
{
    return forward([&](auto& feature) { return feature.GetValue(value); });
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

ZebErrorType ZebFeatureWrapper::GetEntry(ZebCPP::EnumEntry& entry, const char* entryName)
{
    return forward([&](auto& feature) { return feature.GetEntry(entry, entryName); });
}

ZebErrorType ZebFeatureWrapper::GetEntries(std::vector<ZebCPP::EnumEntry>& entries)
{
    return forward([&](ZebCPP::Feature& feature) {
        return TwoCallPattern::readList(entries, [&](ZebCPP::EnumEntry* items, uint32_t& count) {
            return feature.GetEntries(items, count);
        });
    });
}

ZebErrorType ZebFeatureWrapper::GetRange(int64_t& minimum, int64_t& maximum)
{
    return forward([&](auto& feature) { return feature.GetRange(minimum, maximum); });
}

ZebErrorType ZebFeatureWrapper::GetRange(double& minimum, double& maximum)
{
    return forward([&](auto& feature) { return feature.GetRange(minimum, maximum); });
}

ZebErrorType ZebFeatureWrapper::SetValue(const std::vector<uint8_t>& value)
{
    if (value.empty() || value.size() > std::numeric_limits<uint32_t>::max())
        return Sdk::badParameter;
    return forward([&](auto& feature) {
        return feature.SetValue(value.data(), static_cast<uint32_t>(value.size()));
    });
}

ZebErrorType ZebFeatureWrapper::SetValue(const char* value)
{
    return forward([&](auto& feature) { return feature.SetValue(value); });
}

ZebErrorType ZebFeatureWrapper::SetValue(bool value)
{
    return forward([&](auto& feature) { return feature.SetValue(value); });
}

ZebErrorType ZebFeatureWrapper::SetValue(double value)
{
    return forward([&](auto& feature) { return feature.SetValue(value); });
}

ZebErrorType ZebFeatureWrapper::SetValue(int64_t value)
{
    return forward([&](auto& feature) { return feature.SetValue(value); });
}

ZebErrorType ZebFeatureWrapper::HasIncrement(bool& hasIncrement)
{
    return forward([&](auto& feature) { return feature.HasIncrement(hasIncrement); });
}

ZebErrorType ZebFeatureWrapper::GetIncrement(double& increment)
{
    return forward([&](auto& feature) { return feature.GetIncrement(increment); });
}

ZebErrorType ZebFeatureWrapper::GetIncrement(int64_t& increment)
{
    return forward([&](auto& feature) { return feature.GetIncrement(increment); });
}

ZebErrorType ZebFeatureWrapper::IsValueAvailable(int64_t value, bool& available)
{
    return forward([&](auto& feature) { return feature.IsValueAvailable(value, available); });
}

ZebErrorType ZebFeatureWrapper::IsValueAvailable(const char* value, bool& available)
{
    return forward([&](auto& feature) { return feature.IsValueAvailable(value, available); });
}

ZebErrorType ZebFeatureWrapper::RunCommand()
{
    return forward([](auto& feature) { return feature.RunCommand(); });
}

ZebErrorType ZebFeatureWrapper::IsCommandDone(bool& done)
{
    return forward([&](auto& feature) { return feature.IsCommandDone(done); });
}

ZebErrorType ZebFeatureWrapper::GetName(std::string& name)
{
    return readText(&ZebCPP::Feature::GetName, name);
}

ZebErrorType ZebFeatureWrapper::GetDisplayName(std::string& displayName)
{
    return readText(&ZebCPP::Feature::GetDisplayName, displayName);
}

ZebErrorType ZebFeatureWrapper::GetDataType(ZebFeatureDataType& dataType)
{
    return forward([&](auto& feature) { return feature.GetDataType(dataType); });
}

ZebErrorType ZebFeatureWrapper::GetFlags(ZebFeatureFlagsType& flags)
{
    return forward([&](auto& feature) { return feature.GetFlags(flags); });
}

ZebErrorType ZebFeatureWrapper::GetCategory(std::string& category)
{
    return readText(&ZebCPP::Feature::GetCategory, category);
}

ZebErrorType ZebFeatureWrapper::GetUnit(std::string& unit)
{
    return readText(&ZebCPP::Feature::GetUnit, unit);
}

ZebErrorType ZebFeatureWrapper::GetRepresentation(std::string& representation)
{
    return readText(&ZebCPP::Feature::GetRepresentation, representation);
}

ZebErrorType ZebFeatureWrapper::GetVisibility(ZebFeatureVisibilityType& visibility)
{
    return forward([&](auto& feature) { return feature.GetVisibility(visibility); });
}

ZebErrorType ZebFeatureWrapper::GetToolTip(std::string& toolTip)
{
    return readText(&ZebCPP::Feature::GetToolTip, toolTip);
}

ZebErrorType ZebFeatureWrapper::GetDescription(std::string& description)
{
    return readText(&ZebCPP::Feature::GetDescription, description);
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

ZebErrorType ZebFeatureWrapper::IsReadable(bool& readable)
{
    return forward([&](auto& feature) { return feature.IsReadable(readable); });
}

ZebErrorType ZebFeatureWrapper::IsWritable(bool& writable)
{
    return forward([&](auto& feature) { return feature.IsWritable(writable); });
}

ZebErrorType ZebFeatureWrapper::RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
{
    return forward([&](auto& feature) { return feature.RegisterObserver(observer); });
}

ZebErrorType ZebFeatureWrapper::UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
{
    return forward([&](auto& feature) { return feature.UnregisterObserver(observer); });
}

#pragma once

#include "features/SdkValues.h"
#include "features/TwoCallPattern.h"

#include <ZebCPP/ZebCPP.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// One camera feature: the SDK's operations on standard strings and vectors. Each answers the SDK's
/// code, none throws, and outputs are written only as far as the SDK wrote them. A null feature
/// answers Sdk::badHandle, an exception of the SDK or an absurd length Sdk::resources.
class ZebFeatureWrapper
{
    using Raw = ZebCPP::Feature;

public:
    explicit ZebFeatureWrapper(const ZebCPP::FeaturePtr& feature)
        : m_feature(feature)
    {
    }
    virtual ~ZebFeatureWrapper();

    ZebFeatureWrapper(const ZebFeatureWrapper&) = delete;
    ZebFeatureWrapper& operator=(const ZebFeatureWrapper&) = delete;

    virtual ZebCPP::FeaturePtr& GetFeature() { return m_feature; }

    /// Raw bytes; @p sizeFilled is how many of them the camera filled.
    virtual ZebErrorType GetValue(std::vector<uint8_t>& value, uint32_t& sizeFilled);
    virtual ZebErrorType GetValue(std::vector<uint8_t>& value);
    virtual ZebErrorType GetValue(bool& value)
    {
        return forward([&](Raw& sdk) { return sdk.GetValue(value); });
    }
    /// Unlike the other texts, @p value is emptied when the call fails.
    virtual ZebErrorType GetValue(std::string& value);
    virtual ZebErrorType GetValue(double& value)
    {
        return forward([&](Raw& sdk) { return sdk.GetValue(value); });
    }
    virtual ZebErrorType GetValue(int64_t& value)
    {
        return forward([&](Raw& sdk) { return sdk.GetValue(value); });
    }
    virtual ZebErrorType GetValues(std::vector<std::string>& values);
    virtual ZebErrorType GetValues(std::vector<int64_t>& values);
    virtual ZebErrorType GetEntry(ZebCPP::EnumEntry& entry, const char* entryName)
    {
        return forward([&](Raw& sdk) { return sdk.GetEntry(entry, entryName); });
    }
    virtual ZebErrorType GetEntries(std::vector<ZebCPP::EnumEntry>& entries);
    virtual ZebErrorType GetRange(int64_t& minimum, int64_t& maximum)
    {
        return forward([&](Raw& sdk) { return sdk.GetRange(minimum, maximum); });
    }
    virtual ZebErrorType GetRange(double& minimum, double& maximum)
    {
        return forward([&](Raw& sdk) { return sdk.GetRange(minimum, maximum); });
    }

    /// An empty vector answers Sdk::badParameter without reaching the camera.
    virtual ZebErrorType SetValue(const std::vector<uint8_t>& value);
    /// Exists so that a null literal is never taken for a text.
    virtual ZebErrorType SetValue(std::nullptr_t) = delete;
    virtual ZebErrorType SetValue(const char* value)
    {
        return forward([&](Raw& sdk) { return sdk.SetValue(value); });
    }
    virtual ZebErrorType SetValue(bool value)
    {
        return forward([&](Raw& sdk) { return sdk.SetValue(value); });
    }
    virtual ZebErrorType SetValue(double value)
    {
        return forward([&](Raw& sdk) { return sdk.SetValue(value); });
    }
    virtual ZebErrorType SetValue(int64_t value)
    {
        return forward([&](Raw& sdk) { return sdk.SetValue(value); });
    }

    virtual ZebErrorType HasIncrement(bool& hasIncrement)
    {
        return forward([&](Raw& sdk) { return sdk.HasIncrement(hasIncrement); });
    }
    virtual ZebErrorType GetIncrement(double& increment)
    {
        return forward([&](Raw& sdk) { return sdk.GetIncrement(increment); });
    }
    virtual ZebErrorType GetIncrement(int64_t& increment)
    {
        return forward([&](Raw& sdk) { return sdk.GetIncrement(increment); });
    }
    virtual ZebErrorType IsValueAvailable(int64_t value, bool& available)
    {
        return forward([&](Raw& sdk) { return sdk.IsValueAvailable(value, available); });
    }
    virtual ZebErrorType IsValueAvailable(std::nullptr_t, bool& available) = delete;
    virtual ZebErrorType IsValueAvailable(const char* value, bool& available)
    {
        return forward([&](Raw& sdk) { return sdk.IsValueAvailable(value, available); });
    }
    virtual ZebErrorType RunCommand()
    {
        return forward([&](Raw& sdk) { return sdk.RunCommand(); });
    }
    virtual ZebErrorType IsCommandDone(bool& done)
    {
        return forward([&](Raw& sdk) { return sdk.IsCommandDone(done); });
    }

    virtual ZebErrorType GetName(std::string& name)
    {
        return fetch(name, [](Raw& sdk, auto&&... to) { return sdk.GetName(to...); });
    }
    virtual ZebErrorType GetDisplayName(std::string& displayName)
    {
        return fetch(displayName, [](Raw& sdk, auto&&... to) { return sdk.GetDisplayName(to...); });
    }
    virtual ZebErrorType GetDataType(ZebFeatureDataType& dataType)
    {
        return forward([&](Raw& sdk) { return sdk.GetDataType(dataType); });
    }
    virtual ZebErrorType GetFlags(ZebFeatureFlagsType& flags)
    {
        return forward([&](Raw& sdk) { return sdk.GetFlags(flags); });
    }
    virtual ZebErrorType GetCategory(std::string& category)
    {
        return fetch(category, [](Raw& sdk, auto&&... to) { return sdk.GetCategory(to...); });
    }
    virtual ZebErrorType GetUnit(std::string& unit)
    {
        return fetch(unit, [](Raw& sdk, auto&&... to) { return sdk.GetUnit(to...); });
    }
    virtual ZebErrorType GetRepresentation(std::string& representation)
    {
        return fetch(representation,
                     [](Raw& sdk, auto&&... to) { return sdk.GetRepresentation(to...); });
    }
    virtual ZebErrorType GetVisibility(ZebFeatureVisibilityType& visibility)
    {
        return forward([&](Raw& sdk) { return sdk.GetVisibility(visibility); });
    }
    virtual ZebErrorType GetToolTip(std::string& toolTip)
    {
        return fetch(toolTip, [](Raw& sdk, auto&&... to) { return sdk.GetToolTip(to...); });
    }
    virtual ZebErrorType GetDescription(std::string& description)
    {
        return fetch(description, [](Raw& sdk, auto&&... to) { return sdk.GetDescription(to...); });
    }
    virtual ZebErrorType GetSelectedFeatures(std::vector<ZebCPP::FeaturePtr>& features);
    virtual ZebErrorType GetValidValueSet(std::vector<int64_t>& values);
    virtual ZebErrorType IsReadable(bool& readable)
    {
        return forward([&](Raw& sdk) { return sdk.IsReadable(readable); });
    }
    virtual ZebErrorType IsWritable(bool& writable)
    {
        return forward([&](Raw& sdk) { return sdk.IsWritable(writable); });
    }

    virtual ZebErrorType RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
    {
        return forward([&](Raw& sdk) { return sdk.RegisterObserver(observer); });
    }
    virtual ZebErrorType UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
    {
        return forward([&](Raw& sdk) { return sdk.UnregisterObserver(observer); });
    }

private:
    // The SDK is foreign code: neither an exception of its own nor a feature that was handed over
    // as a null pointer may leave these operations in any way but as a result code.
    template <typename Call> ZebErrorType forward(Call&& call) noexcept
    try {
        return m_feature ? call(*m_feature) : Sdk::badHandle;
    } catch (...) {
        return Sdk::resources;
    }
    /// A text or a list.
    template <typename Output, typename Get> ZebErrorType fetch(Output& output, Get&& get) noexcept
    {
        return forward([&](Raw& sdk) {
            const auto call = [&](auto* buffer, uint32_t& size) { return get(sdk, buffer, size); };
            return TwoCallPattern::read(output, call);
        });
    }

    ZebCPP::FeaturePtr m_feature;
};

using ZebFeatureWrapperPtr = std::shared_ptr<ZebFeatureWrapper>;

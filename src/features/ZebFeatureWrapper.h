#pragma once

#include "features/SdkValues.h"

#include <ZebCPP/ZebCPP.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// The program's handle on one camera feature: the SDK's operations on standard strings and
/// vectors. Every operation answers the SDK's result code, none throws, and outputs are written
/// only as far as the SDK wrote them. A null feature answers Sdk::badHandle, an exception of the
/// SDK or an absurd length Sdk::resources. All operations are virtual so that a test can stand in
/// for a camera.
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
    virtual ZebErrorType GetValue(bool& value) { return pass<bool&>(&Raw::GetValue, value); }
    /// Unlike the other texts, @p value is emptied when the call fails.
    virtual ZebErrorType GetValue(std::string& value);
    virtual ZebErrorType GetValue(double& value) { return pass<double&>(&Raw::GetValue, value); }
    virtual ZebErrorType GetValue(int64_t& value) { return pass<int64_t&>(&Raw::GetValue, value); }
    virtual ZebErrorType GetValues(std::vector<std::string>& values);
    virtual ZebErrorType GetValues(std::vector<int64_t>& values);
    virtual ZebErrorType GetEntry(ZebCPP::EnumEntry& entry, const char* entryName)
    {
        return pass<ZebCPP::EnumEntry&, const char*>(&Raw::GetEntry, entry, entryName);
    }
    virtual ZebErrorType GetEntries(std::vector<ZebCPP::EnumEntry>& entries);
    virtual ZebErrorType GetRange(int64_t& minimum, int64_t& maximum)
    {
        return pass<int64_t&, int64_t&>(&Raw::GetRange, minimum, maximum);
    }
    virtual ZebErrorType GetRange(double& minimum, double& maximum)
    {
        return pass<double&, double&>(&Raw::GetRange, minimum, maximum);
    }

    /// An empty vector answers Sdk::badParameter without reaching the camera.
    virtual ZebErrorType SetValue(const std::vector<uint8_t>& value);
    /// Exists so that a null literal is never taken for a text.
    virtual ZebErrorType SetValue(std::nullptr_t) = delete;
    virtual ZebErrorType SetValue(const char* value)
    {
        return pass<const char*>(&Raw::SetValue, value);
    }
    virtual ZebErrorType SetValue(bool value) { return pass<bool>(&Raw::SetValue, value); }
    virtual ZebErrorType SetValue(double value) { return pass<double>(&Raw::SetValue, value); }
    virtual ZebErrorType SetValue(int64_t value) { return pass<int64_t>(&Raw::SetValue, value); }

    virtual ZebErrorType HasIncrement(bool& hasIncrement)
    {
        return pass<bool&>(&Raw::HasIncrement, hasIncrement);
    }
    virtual ZebErrorType GetIncrement(double& increment)
    {
        return pass<double&>(&Raw::GetIncrement, increment);
    }
    virtual ZebErrorType GetIncrement(int64_t& increment)
    {
        return pass<int64_t&>(&Raw::GetIncrement, increment);
    }
    virtual ZebErrorType IsValueAvailable(int64_t value, bool& available)
    {
        return pass<int64_t, bool&>(&Raw::IsValueAvailable, value, available);
    }
    virtual ZebErrorType IsValueAvailable(std::nullptr_t, bool& available) = delete;
    virtual ZebErrorType IsValueAvailable(const char* value, bool& available)
    {
        return pass<const char*, bool&>(&Raw::IsValueAvailable, value, available);
    }
    virtual ZebErrorType RunCommand() { return pass<>(&Raw::RunCommand); }
    virtual ZebErrorType IsCommandDone(bool& done)
    {
        return pass<bool&>(&Raw::IsCommandDone, done);
    }

    virtual ZebErrorType GetName(std::string& name) { return readText(&Raw::GetName, name); }
    virtual ZebErrorType GetDisplayName(std::string& displayName)
    {
        return readText(&Raw::GetDisplayName, displayName);
    }
    virtual ZebErrorType GetDataType(ZebFeatureDataType& dataType)
    {
        return pass<ZebFeatureDataType&>(&Raw::GetDataType, dataType);
    }
    virtual ZebErrorType GetFlags(ZebFeatureFlagsType& flags)
    {
        return pass<ZebFeatureFlagsType&>(&Raw::GetFlags, flags);
    }
    virtual ZebErrorType GetCategory(std::string& category)
    {
        return readText(&Raw::GetCategory, category);
    }
    virtual ZebErrorType GetUnit(std::string& unit) { return readText(&Raw::GetUnit, unit); }
    virtual ZebErrorType GetRepresentation(std::string& representation)
    {
        return readText(&Raw::GetRepresentation, representation);
    }
    virtual ZebErrorType GetVisibility(ZebFeatureVisibilityType& visibility)
    {
        return pass<ZebFeatureVisibilityType&>(&Raw::GetVisibility, visibility);
    }
    virtual ZebErrorType GetToolTip(std::string& toolTip)
    {
        return readText(&Raw::GetToolTip, toolTip);
    }
    virtual ZebErrorType GetDescription(std::string& description)
    {
        return readText(&Raw::GetDescription, description);
    }
    virtual ZebErrorType GetSelectedFeatures(std::vector<ZebCPP::FeaturePtr>& features);
    virtual ZebErrorType GetValidValueSet(std::vector<int64_t>& values);
    virtual ZebErrorType IsReadable(bool& readable)
    {
        return pass<bool&>(&Raw::IsReadable, readable);
    }
    virtual ZebErrorType IsWritable(bool& writable)
    {
        return pass<bool&>(&Raw::IsWritable, writable);
    }

    virtual ZebErrorType RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
    {
        return pass<const ZebCPP::IFeatureObserverPtr&>(&Raw::RegisterObserver, observer);
    }
    virtual ZebErrorType UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
    {
        return pass<const ZebCPP::IFeatureObserverPtr&>(&Raw::UnregisterObserver, observer);
    }

private:
    using TextGetter = ZebErrorType (Raw::*)(char*, uint32_t&);

    // The SDK is foreign code: neither an exception of its own nor a feature that was handed over
    // as a null pointer may leave these operations in any way but as a result code.
    template <typename Call> ZebErrorType forward(Call&& call) noexcept
    try {
        return m_feature ? call(*m_feature) : Sdk::badHandle;
    } catch (...) {
        return Sdk::resources;
    }
    /// Calls the overload of those parameters.
    template <typename... Parameters>
    ZebErrorType pass(ZebErrorType (Raw::*operation)(Parameters...), Parameters... arguments)
    {
        return forward([&](Raw& feature) { return (feature.*operation)(arguments...); });
    }
    ZebErrorType readText(TextGetter getter, std::string& text);

    ZebCPP::FeaturePtr m_feature;
};

using ZebFeatureWrapperPtr = std::shared_ptr<ZebFeatureWrapper>;

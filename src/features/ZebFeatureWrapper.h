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
public:
    explicit ZebFeatureWrapper(const ZebCPP::FeaturePtr& feature);
    virtual ~ZebFeatureWrapper();

    ZebFeatureWrapper(const ZebFeatureWrapper&) = delete;
    ZebFeatureWrapper& operator=(const ZebFeatureWrapper&) = delete;

    virtual ZebCPP::FeaturePtr& GetFeature();

    /// Raw bytes; @p sizeFilled is how many of them the camera filled.
    virtual ZebErrorType GetValue(std::vector<uint8_t>& value, uint32_t& sizeFilled);
    virtual ZebErrorType GetValue(std::vector<uint8_t>& value);
    virtual ZebErrorType GetValue(bool& value);
    /// Unlike the other texts, @p value is emptied when the call fails.
    virtual ZebErrorType GetValue(std::string& value);
    virtual ZebErrorType GetValue(double& value);
    virtual ZebErrorType GetValue(int64_t& value);
    virtual ZebErrorType GetValues(std::vector<std::string>& values);
    virtual ZebErrorType GetValues(std::vector<int64_t>& values);
    virtual ZebErrorType GetEntry(ZebCPP::EnumEntry& entry, const char* entryName);
    virtual ZebErrorType GetEntries(std::vector<ZebCPP::EnumEntry>& entries);
    virtual ZebErrorType GetRange(int64_t& minimum, int64_t& maximum);
    virtual ZebErrorType GetRange(double& minimum, double& maximum);

    /// An empty vector answers Sdk::badParameter without reaching the camera.
    virtual ZebErrorType SetValue(const std::vector<uint8_t>& value);
    /// Exists so that a null literal is never taken for a text.
    virtual ZebErrorType SetValue(std::nullptr_t) = delete;
    virtual ZebErrorType SetValue(const char* value);
    virtual ZebErrorType SetValue(bool value);
    virtual ZebErrorType SetValue(double value);
    virtual ZebErrorType SetValue(int64_t value);

    virtual ZebErrorType HasIncrement(bool& hasIncrement);
    virtual ZebErrorType GetIncrement(double& increment);
    virtual ZebErrorType GetIncrement(int64_t& increment);
    virtual ZebErrorType IsValueAvailable(int64_t value, bool& available);
    virtual ZebErrorType IsValueAvailable(std::nullptr_t, bool& available) = delete;
    virtual ZebErrorType IsValueAvailable(const char* value, bool& available);
    virtual ZebErrorType RunCommand();
    virtual ZebErrorType IsCommandDone(bool& done);

    virtual ZebErrorType GetName(std::string& name);
    virtual ZebErrorType GetDisplayName(std::string& displayName);
    virtual ZebErrorType GetDataType(ZebFeatureDataType& dataType);
    virtual ZebErrorType GetFlags(ZebFeatureFlagsType& flags);
    virtual ZebErrorType GetCategory(std::string& category);
    virtual ZebErrorType GetUnit(std::string& unit);
    virtual ZebErrorType GetRepresentation(std::string& representation);
    virtual ZebErrorType GetVisibility(ZebFeatureVisibilityType& visibility);
    virtual ZebErrorType GetToolTip(std::string& toolTip);
    virtual ZebErrorType GetDescription(std::string& description);
    virtual ZebErrorType GetSelectedFeatures(std::vector<ZebCPP::FeaturePtr>& features);
    virtual ZebErrorType GetValidValueSet(std::vector<int64_t>& values);
    virtual ZebErrorType IsReadable(bool& readable);
    virtual ZebErrorType IsWritable(bool& writable);

    virtual ZebErrorType RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer);
    virtual ZebErrorType UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer);

private:
    using TextGetter = ZebErrorType (ZebCPP::Feature::*)(char*, uint32_t&);

    template <typename Call> ZebErrorType forward(Call&& call) noexcept;
    ZebErrorType readText(TextGetter getter, std::string& text);

    ZebCPP::FeaturePtr m_feature;
};

using ZebFeatureWrapperPtr = std::shared_ptr<ZebFeatureWrapper>;

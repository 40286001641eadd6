#pragma once

// Interface of the camera maker's SDK, as far as this module uses it.
//
// Header-only stand-in: it declares the operations and implements none, so that cameras (the
// simulated ones here, or a test's own) can be written against it without the maker's library.
// Configure with -DZEBCPP_ROOT=DIR to build against the maker's header and library instead.
//
// Conventions of the SDK:
// - Every operation returns a ZebErrorType; 0 is success, negative values are failures. Outputs
//   are written as far as the SDK got.
// - Texts are NUL-terminated 8-bit strings. Texts and lists are fetched in two calls: the first
//   with a null buffer answers the needed length (for texts the terminator included), the second
//   fills a buffer of that length. Raw values and valid-value sets take the capacity and answer
//   the count in parameters of their own. Texts in a list belong to the feature and last until
//   its next call.
// - Observers are called on a thread of the SDK's choice, possibly before RegisterObserver or
//   SetValue has returned.

#include <cstdint>
#include <memory>

enum ZebErrorType : std::int32_t {
    ZebErrorSuccess = 0,
    ZebErrorOther = -1,
    ZebErrorNotFound = -3,
    ZebErrorBadHandle = -4,
    ZebErrorInvalidAccess = -6,
    ZebErrorBadParameter = -7,
    ZebErrorInvalidValue = -11,
    ZebErrorTimeout = -12,
    ZebErrorResources = -14,
};

enum ZebFeatureDataType : std::int32_t {
    ZebFeatureDataUnknown = 0,
    ZebFeatureDataInt = 1,
    ZebFeatureDataFloat = 2,
    ZebFeatureDataEnum = 3,
    ZebFeatureDataString = 4,
    ZebFeatureDataBool = 5,
    ZebFeatureDataCommand = 6,
    ZebFeatureDataRaw = 7,
};

enum ZebFeatureVisibilityType : std::int32_t {
    ZebFeatureVisibilityUnknown = 0,
    ZebFeatureVisibilityBeginner = 1,
    ZebFeatureVisibilityExpert = 2,
    ZebFeatureVisibilityGuru = 3,
    ZebFeatureVisibilityInvisible = 4,
};

/// Bit set; combine values with |.
enum ZebFeatureFlagsType : std::uint32_t {
    ZebFeatureFlagsNone = 0,
    ZebFeatureFlagsRead = 1,
    ZebFeatureFlagsWrite = 2,
    ZebFeatureFlagsVolatile = 8,
    ZebFeatureFlagsModifyWrite = 16,
};

namespace ZebCPP {

class Feature;
class IFeatureObserver;

using FeaturePtr = std::shared_ptr<Feature>;
using IFeatureObserverPtr = std::shared_ptr<IFeatureObserver>;

/// One entry of an enumeration feature; opaque to this module.
class EnumEntry
{
};

/// Receives change notifications of the features it is registered on.
class IFeatureObserver
{
public:
    IFeatureObserver(const IFeatureObserver&) = delete;
    IFeatureObserver& operator=(const IFeatureObserver&) = delete;

    /// Called once per change, on a thread that need not be the GUI thread.
    virtual void FeatureChanged(const FeaturePtr& feature) = 0;
    virtual ~IFeatureObserver() = default;

protected:
    IFeatureObserver() = default;
};

/// One named feature of an opened camera.
class Feature
{
public:
    Feature(const Feature&) = delete;
    Feature& operator=(const Feature&) = delete;
    virtual ~Feature() = default;

    virtual ZebErrorType GetValue(std::int64_t& value) = 0;
    virtual ZebErrorType GetValue(double& value) = 0;
    virtual ZebErrorType GetValue(bool& value) = 0;
    virtual ZebErrorType GetValue(char* buffer, std::uint32_t& length) = 0;
    virtual ZebErrorType GetValue(std::uint8_t* buffer, std::uint32_t bufferSize,
                                  std::uint32_t& sizeFilled)
        = 0;

    virtual ZebErrorType GetValues(const char** values, std::uint32_t& count) = 0;
    virtual ZebErrorType GetValues(std::int64_t* values, std::uint32_t& count) = 0;

    virtual ZebErrorType GetEntry(EnumEntry& entry, const char* name) = 0;
    virtual ZebErrorType GetEntries(EnumEntry* entries, std::uint32_t& count) = 0;

    virtual ZebErrorType GetRange(std::int64_t& minimum, std::int64_t& maximum) = 0;
    virtual ZebErrorType GetRange(double& minimum, double& maximum) = 0;

    virtual ZebErrorType HasIncrement(bool& hasIncrement) = 0;
    virtual ZebErrorType GetIncrement(std::int64_t& increment) = 0;
    virtual ZebErrorType GetIncrement(double& increment) = 0;

    virtual ZebErrorType GetValidValueSet(std::int64_t* values, std::uint32_t bufferSize,
                                          std::uint32_t* setSize)
        = 0;

    virtual ZebErrorType IsValueAvailable(std::int64_t value, bool& available) = 0;
    virtual ZebErrorType IsValueAvailable(const char* value, bool& available) = 0;

    virtual ZebErrorType SetValue(std::int64_t value) = 0;
    virtual ZebErrorType SetValue(double value) = 0;
    virtual ZebErrorType SetValue(bool value) = 0;
    virtual ZebErrorType SetValue(const char* value) = 0;
    virtual ZebErrorType SetValue(const std::uint8_t* data, std::uint32_t size) = 0;

    virtual ZebErrorType RunCommand() = 0;
    virtual ZebErrorType IsCommandDone(bool& done) = 0;

    virtual ZebErrorType GetName(char* buffer, std::uint32_t& length) = 0;
    virtual ZebErrorType GetDisplayName(char* buffer, std::uint32_t& length) = 0;
    virtual ZebErrorType GetCategory(char* buffer, std::uint32_t& length) = 0;
    virtual ZebErrorType GetUnit(char* buffer, std::uint32_t& length) = 0;
    virtual ZebErrorType GetRepresentation(char* buffer, std::uint32_t& length) = 0;
    virtual ZebErrorType GetToolTip(char* buffer, std::uint32_t& length) = 0;
    virtual ZebErrorType GetDescription(char* buffer, std::uint32_t& length) = 0;

    virtual ZebErrorType GetDataType(ZebFeatureDataType& dataType) = 0;
    virtual ZebErrorType GetFlags(ZebFeatureFlagsType& flags) = 0;
    virtual ZebErrorType GetVisibility(ZebFeatureVisibilityType& visibility) = 0;

    virtual ZebErrorType GetSelectedFeatures(FeaturePtr* features, std::uint32_t& count) = 0;

    virtual ZebErrorType IsReadable(bool& readable) = 0;
    virtual ZebErrorType IsWritable(bool& writable) = 0;

    virtual ZebErrorType RegisterObserver(const IFeatureObserverPtr& observer) = 0;
    virtual ZebErrorType UnregisterObserver(const IFeatureObserverPtr& observer) = 0;

protected:
    Feature() = default;
};

} // namespace ZebCPP

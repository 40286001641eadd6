#pragma once

#include "Failure.h"
#include "Operation.h"
#include "Value.h"

#include <ZebCPP/ZebCPP.h>

#include <cstddef>
#include <memory>
#include <string>

namespace sim {

class ChangeSet;
class Device;
class FeatureStore;
struct FeatureDescription;

/// A simulated camera's feature, as clients see it through the SDK. Every call passes the failures
/// and the journal. Answers ZebErrorBadHandle once the camera is closed.
class SimFeature : public ZebCPP::Feature, public std::enable_shared_from_this<SimFeature>
{
public:
    SimFeature(std::weak_ptr<Device> device, std::size_t index, std::string name);

    ZebErrorType GetValue(std::int64_t& value) override;
    ZebErrorType GetValue(double& value) override;
    ZebErrorType GetValue(bool& value) override;
    ZebErrorType GetValue(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetValue(std::uint8_t* buffer, std::uint32_t bufferSize,
                          std::uint32_t& sizeFilled) override;
    ZebErrorType GetValues(const char** values, std::uint32_t& count) override;
    ZebErrorType GetValues(std::int64_t* values, std::uint32_t& count) override;
    ZebErrorType GetEntry(ZebCPP::EnumEntry& entry, const char* name) override;
    ZebErrorType GetEntries(ZebCPP::EnumEntry* entries, std::uint32_t& count) override;
    ZebErrorType GetRange(std::int64_t& minimum, std::int64_t& maximum) override;
    ZebErrorType GetRange(double& minimum, double& maximum) override;
    ZebErrorType HasIncrement(bool& hasIncrement) override;
    ZebErrorType GetIncrement(std::int64_t& increment) override;
    ZebErrorType GetIncrement(double& increment) override;
    ZebErrorType GetValidValueSet(std::int64_t* values, std::uint32_t bufferSize,
                                  std::uint32_t* setSize) override;
    ZebErrorType IsValueAvailable(std::int64_t value, bool& available) override;
    ZebErrorType IsValueAvailable(const char* value, bool& available) override;
    ZebErrorType SetValue(std::int64_t value) override;
    ZebErrorType SetValue(double value) override;
    ZebErrorType SetValue(bool value) override;
    ZebErrorType SetValue(const char* value) override;
    ZebErrorType SetValue(const std::uint8_t* data, std::uint32_t size) override;
    ZebErrorType RunCommand() override;
    ZebErrorType IsCommandDone(bool& done) override;
    ZebErrorType GetName(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetDisplayName(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetCategory(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetUnit(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetRepresentation(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetToolTip(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetDescription(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetDataType(ZebFeatureDataType& dataType) override;
    ZebErrorType GetFlags(ZebFeatureFlagsType& flags) override;
    ZebErrorType GetVisibility(ZebFeatureVisibilityType& visibility) override;
    ZebErrorType GetSelectedFeatures(ZebCPP::FeaturePtr* features, std::uint32_t& count) override;
    ZebErrorType IsReadable(bool& readable) override;
    ZebErrorType IsWritable(bool& writable) override;
    ZebErrorType RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer) override;
    ZebErrorType UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer) override;

private:
    using TextField = std::string FeatureDescription::*;

    struct Call;

    template <typename Body> ZebErrorType perform(Operation operation, Body&& body);
    template <typename Type, typename Read>
    ZebErrorType read(Operation operation, Type& output, Read&& read);
    template <typename Type> ZebErrorType readNumber(ZebFeatureDataType type, Type& output);
    ZebErrorType readText(Operation operation, TextField field, char* buffer,
                          std::uint32_t& length);
    ZebErrorType write(Operation operation, const Value& value);

    const std::weak_ptr<Device> m_device;
    const std::size_t m_index;
    const std::string m_name;
    /// Keeps the entry names alive whose addresses clients were given.
    std::shared_ptr<const FeatureDescription> m_listed;
};

} // namespace sim

#pragma once

#include "ChangeWatch.h"

#include <array>
#include <optional>

namespace genicam {

/// One node of a camera's description as a feature of the SDK. After the camera is closed it
/// answers ZebErrorBadHandle.
class GenicamFeature : public ZebCPP::Feature, public std::enable_shared_from_this<GenicamFeature>
{
public:
    struct Place
    {
        std::size_t index; ///< in the camera's list
        std::string category;
        std::string vendorPrefix; ///< put before the value, when it is not empty
    };

    /// Needs the device's lock.
    GenicamFeature(ArvGcFeatureNode* node, Place place, std::shared_ptr<DeviceLink> link,
                   std::shared_ptr<ChangeWatch> watch);

    ArvGcFeatureNode* node() const { return m_node; }
    const std::string& name() const { return m_name; }
    bool isBackedByCamera() const { return m_isBackedByCamera; }

    /// Reads the value past what the library remembers; false when the camera is lost.
    bool look();
    /// The value as a text, read in the same way.
    std::string readText();
    /// Writes a text, and leaves it to the watch to find out.
    ZebErrorType writeUnnoticed(const std::string& text);
    /// What this one selects, of the camera's list.
    void setSelected(std::vector<std::weak_ptr<GenicamFeature>> selected)
    {
        m_selected = std::move(selected);
    }

    ZebErrorType GetValue(std::int64_t& value) override
    {
        return readPlain(ZebFeatureDataInt, value);
    }
    ZebErrorType GetValue(double& value) override { return readPlain(ZebFeatureDataFloat, value); }
    ZebErrorType GetValue(bool& value) override { return readPlain(ZebFeatureDataBool, value); }
    ZebErrorType GetValue(char* buffer, std::uint32_t& length) override;
    ZebErrorType GetValue(std::uint8_t* buffer, std::uint32_t bufferSize,
                          std::uint32_t& sizeFilled) override;
    ZebErrorType GetValues(const char** values, std::uint32_t& count) override;
    ZebErrorType GetValues(std::int64_t* values, std::uint32_t& count) override;
    ZebErrorType GetEntry(ZebCPP::EnumEntry& entry, const char* name) override;
    ZebErrorType GetEntries(ZebCPP::EnumEntry* entries, std::uint32_t& count) override;
    ZebErrorType GetRange(std::int64_t& minimum, std::int64_t& maximum) override
    {
        return readBounds(minimum, maximum);
    }
    ZebErrorType GetRange(double& minimum, double& maximum) override
    {
        return readBounds(minimum, maximum);
    }
    ZebErrorType HasIncrement(bool& hasIncrement) override;
    ZebErrorType GetIncrement(std::int64_t& increment) override { return readIncrement(increment); }
    ZebErrorType GetIncrement(double& increment) override { return readIncrement(increment); }
    ZebErrorType GetValidValueSet(std::int64_t* values, std::uint32_t bufferSize,
                                  std::uint32_t* setSize) override;
    ZebErrorType IsValueAvailable(std::int64_t value, bool& available) override;
    ZebErrorType IsValueAvailable(const char* value, bool& available) override;
    ZebErrorType SetValue(std::int64_t value) override { return write(value); }
    ZebErrorType SetValue(double value) override { return write(value); }
    ZebErrorType SetValue(bool value) override { return write(value); }
    ZebErrorType SetValue(const char* value) override
    {
        return write(value ? Value(std::string(value)) : Value());
    }
    ZebErrorType SetValue(const std::uint8_t* data, std::uint32_t size) override;
    ZebErrorType RunCommand() override;
    ZebErrorType IsCommandDone(bool& done) override;
    ZebErrorType GetName(char* buffer, std::uint32_t& length) override
    {
        return answer(m_name, buffer, length);
    }
    ZebErrorType GetDisplayName(char* buffer, std::uint32_t& length) override
    {
        return answer(m_displayName, buffer, length);
    }
    ZebErrorType GetCategory(char* buffer, std::uint32_t& length) override
    {
        return answer(m_place.category, buffer, length);
    }
    ZebErrorType GetUnit(char* buffer, std::uint32_t& length) override
    {
        return answer(m_unit, buffer, length);
    }
    ZebErrorType GetRepresentation(char* buffer, std::uint32_t& length) override
    {
        return answer(m_representation, buffer, length);
    }
    ZebErrorType GetToolTip(char* buffer, std::uint32_t& length) override
    {
        return answer(m_toolTip, buffer, length);
    }
    ZebErrorType GetDescription(char* buffer, std::uint32_t& length) override
    {
        return answer(m_description, buffer, length);
    }
    ZebErrorType GetDataType(ZebFeatureDataType& dataType) override
    {
        return tell(m_type, dataType);
    }
    ZebErrorType GetFlags(ZebFeatureFlagsType& flags) override;
    ZebErrorType GetVisibility(ZebFeatureVisibilityType& visibility) override
    {
        return tell(m_visibility, visibility);
    }
    ZebErrorType GetSelectedFeatures(ZebCPP::FeaturePtr* features, std::uint32_t& count) override;
    ZebErrorType IsReadable(bool& readable) override
    {
        return readAccess(&Access::isReadable, readable);
    }
    ZebErrorType IsWritable(bool& writable) override
    {
        return readAccess(&Access::isWritable, writable);
    }
    ZebErrorType RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer) override
    {
        return m_link->isClosed() ? ZebErrorBadHandle : m_watch->add(m_place.index, observer);
    }
    ZebErrorType UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer) override
    {
        return m_link->isClosed() ? ZebErrorBadHandle : m_watch->remove(m_place.index, observer);
    }

private:
    /// Kinds of reading: each has registers of its own.
    enum Kind {
        OfValue,
        OfRange,
        OfAccess,
        OfEntries,
        KindCount
    };

    struct Reading
    {
        std::uint64_t age = 0;
        std::chrono::steady_clock::time_point time;
    };

    bool isOutOfDate(Kind kind);
    template <typename Work> ZebErrorType read(Kind kind, Work&& work);
    template <typename Work> ZebErrorType send(Work&& work);
    template <typename Work> ZebErrorType writeBy(Work&& work);
    ZebErrorType write(const Value& value);
    template <typename Plain> ZebErrorType readPlain(ZebFeatureDataType type, Plain& plain);
    ZebErrorType readAccess(bool Access::*part, bool& output);
    template <typename Number> ZebErrorType readLimits(Range<Number>& range);
    template <typename Number> ZebErrorType readBounds(Number& minimum, Number& maximum);
    template <typename Number> ZebErrorType readIncrement(Number& increment);
    template <typename Plain> ZebErrorType tell(const Plain& known, Plain& output) const
    {
        output = known;
        return m_link->isClosed() ? ZebErrorBadHandle : ZebErrorSuccess;
    }
    ZebErrorType answer(const std::string& text, char* buffer, std::uint32_t& length) const;

    ArvGcFeatureNode* const m_node;
    const Place m_place;
    const std::shared_ptr<DeviceLink> m_link;
    const std::shared_ptr<ChangeWatch> m_watch;
    const ZebFeatureDataType m_type;
    const std::string m_name;
    std::string m_displayName;
    std::string m_unit;
    std::string m_representation;
    std::string m_toolTip;
    std::string m_description;
    ZebFeatureVisibilityType m_visibility;
    bool m_isBackedByCamera = false;
    const Entries m_entries;
    std::vector<std::weak_ptr<GenicamFeature>> m_selected;
    std::optional<bool> m_wasWritable; ///< when the watch looked last
    std::mutex m_mutex;
    std::array<Reading, KindCount> m_readings;
};

} // namespace genicam

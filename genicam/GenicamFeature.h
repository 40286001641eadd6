#pragma once

#include "ChangeWatch.h"

namespace genicam {

/// One node of a camera's description as a feature of the SDK. After the camera is closed it
/// answers ZebErrorBadHandle.
class GenicamFeature : public ZebCPP::Feature
{
public:
    using Integer = std::int64_t;
    using Count = std::uint32_t;

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
    const std::string& name() const { return m_texts[Name]; }

    /// Lets the watch know the value; false when it cannot be read. Past what the library
    /// remembers, unless @p last is young enough.
    bool look(Reading* last = nullptr);
    /// The value as a text, read in the same way.
    std::string readText();
    /// Writes a text, and leaves it to the watch to find out.
    ZebErrorType writeUnnoticed(const std::string& text);

    ZebErrorType GetValue(Integer& value) override { return readPlain(value); }
    ZebErrorType GetValue(double& value) override { return readPlain(value); }
    ZebErrorType GetValue(bool& value) override { return readPlain(value); }
    ZebErrorType GetValue(char* buffer, Count& length) override;
    ZebErrorType GetValue(std::uint8_t* buffer, Count bufferSize, Count& sizeFilled) override;
    ZebErrorType GetValues(const char** values, Count& count) override;
    ZebErrorType GetValues(Integer* values, Count& count) override;
    ZebErrorType GetEntry(ZebCPP::EnumEntry& entry, const char* name) override;
    ZebErrorType GetEntries(ZebCPP::EnumEntry* entries, Count& count) override;
    ZebErrorType GetRange(Integer& low, Integer& high) override { return readBounds(low, high); }
    ZebErrorType GetRange(double& low, double& high) override { return readBounds(low, high); }
    ZebErrorType HasIncrement(bool& hasIncrement) override;
    ZebErrorType GetIncrement(Integer& increment) override { return readIncrement(increment); }
    ZebErrorType GetIncrement(double& increment) override { return readIncrement(increment); }
    ZebErrorType GetValidValueSet(Integer* values, Count bufferSize, Count* setSize) override;
    ZebErrorType IsValueAvailable(Integer value, bool& is) override
    {
        return isEntryThere(value, is);
    }
    ZebErrorType IsValueAvailable(const char* value, bool& is) override;
    ZebErrorType SetValue(Integer value) override { return write(value); }
    ZebErrorType SetValue(double value) override { return write(value); }
    ZebErrorType SetValue(bool value) override { return write(value); }
    ZebErrorType SetValue(const char* value) override;
    ZebErrorType SetValue(const std::uint8_t* data, Count size) override;
    ZebErrorType RunCommand() override;
    ZebErrorType IsCommandDone(bool& done) override;
    ZebErrorType GetName(char* to, Count& n) override { return tell(Name, to, n); }
    ZebErrorType GetDisplayName(char* to, Count& n) override { return tell(DisplayName, to, n); }
    ZebErrorType GetCategory(char* to, Count& n) override { return tell(m_place.category, to, n); }
    ZebErrorType GetUnit(char* to, Count& n) override { return tell(Unit, to, n); }
    ZebErrorType GetRepresentation(char* to, Count& n) override { return tell(Notation, to, n); }
    ZebErrorType GetToolTip(char* to, Count& n) override { return tell(ToolTip, to, n); }
    ZebErrorType GetDescription(char* to, Count& n) override { return tell(Description, to, n); }
    ZebErrorType GetDataType(ZebFeatureDataType& dataType) override;
    ZebErrorType GetFlags(ZebFeatureFlagsType& flags) override;
    ZebErrorType GetVisibility(ZebFeatureVisibilityType& visibility) override;
    ZebErrorType GetSelectedFeatures(ZebCPP::FeaturePtr* features, Count& count) override;
    ZebErrorType IsReadable(bool& is) override { return has(ZebFeatureFlagsRead, is); }
    ZebErrorType IsWritable(bool& is) override { return has(ZebFeatureFlagsWrite, is); }
    ZebErrorType RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer) override;
    ZebErrorType UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer) override;

private:
    /// Kinds of reading: each has registers of its own.
    enum Kind {
        OfValue,
        OfRange,
        OfAccess,
        OfEntries,
        KindCount
    };

    ZebErrorType whenOpen(ZebFeatureDataType type) const;
    ZebErrorType tell(const std::string& text, char* buffer, Count& length) const;
    ZebErrorType tell(TextKind kind, char* buffer, Count& length) const;
    ZebErrorType read(Kind kind, ZebFeatureDataType type, const DeviceLink::Work& work);
    ZebErrorType has(ZebFeatureFlagsType flag, bool& is);
    template <typename Key> ZebErrorType isEntryThere(const Key& key, bool& is);
    template <typename Plain> ZebErrorType readPlain(Plain& plain);
    template <typename Number> ZebErrorType readLimits(Range<Number>& range);
    template <typename Number> ZebErrorType readBounds(Number& low, Number& high);
    template <typename Number> ZebErrorType readIncrement(Number& increment);
    ZebErrorType send(const DeviceLink::Work& work);
    ZebErrorType sendNoticed(const DeviceLink::Work& work);
    template <typename Plain> ZebErrorType write(const Plain& value);

    ArvGcFeatureNode* const m_node;
    const Place m_place;
    const std::shared_ptr<DeviceLink> m_link;
    const std::shared_ptr<ChangeWatch> m_watch;
    const ZebFeatureDataType m_type;
    const ZebFeatureVisibilityType m_visibility;
    const Texts m_texts;
    const Entries m_entries;
    std::optional<bool> m_wasWritable;         ///< at the last look; for the link alone, too
    std::array<Reading, KindCount> m_readings; ///< for the link alone
};

} // namespace genicam

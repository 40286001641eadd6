#include "PlainCamera.h"

#include "simulator/Camera.h"
#include "simulator/models/FeatureBlocks.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

template <typename Item>
ZebErrorType answerList(const std::vector<Item>& items, Item* buffer, std::uint32_t& count)
{
    const auto size = static_cast<std::uint32_t>(items.size());
    if (buffer && count < size)
        return ZebErrorBadParameter;
    if (buffer)
        std::copy(items.begin(), items.end(), buffer);
    count = size;
    return ZebErrorSuccess;
}

ZebErrorType answerText(const std::string& text, char* buffer, std::uint32_t& length)
{
    const auto size = static_cast<std::uint32_t>(text.size() + 1);
    if (buffer && length < size)
        return ZebErrorBadParameter;
    if (buffer)
        std::memcpy(buffer, text.c_str(), size);
    length = size;
    return ZebErrorSuccess;
}

class PlainFeature : public ZebCPP::Feature
{
public:
    PlainFeature(const ZebCPP::FeaturePtr& original, std::shared_ptr<std::size_t> calls)
        : m_calls(std::move(calls))
    {
        ZebFeatureWrapper source(original);
        source.GetName(m_name);
        source.GetDisplayName(m_displayName);
        source.GetCategory(m_category);
        source.GetUnit(m_unit);
        source.GetRepresentation(m_representation);
        source.GetToolTip(m_toolTip);
        source.GetDescription(m_description);
        source.GetDataType(m_type);
        source.GetFlags(m_flags);
        source.GetVisibility(m_visibility);
        source.IsReadable(m_readable);
        source.IsWritable(m_writable);
        source.HasIncrement(m_hasIncrement);
        source.GetValue(m_integer);
        source.GetValue(m_number);
        source.GetValue(m_flag);
        source.GetValue(m_text);
        source.GetValues(m_entries);
        source.GetRange(m_minimum, m_maximum);
        source.GetRange(m_lowest, m_highest);
        source.GetIncrement(m_increment);
        source.GetIncrement(m_step);
        for (const std::string& entry : m_entries)
            m_entryTexts.push_back(entry.c_str());
    }

    const std::string& name() const { return m_name; }
    void setSelected(std::vector<ZebCPP::FeaturePtr> features) { m_selected = std::move(features); }
    const std::vector<ZebCPP::IFeatureObserverPtr>& observers() const { return m_observers; }

    ZebErrorType GetValue(std::int64_t& value) override { return answer(value, m_integer); }
    ZebErrorType GetValue(double& value) override { return answer(value, m_number); }
    ZebErrorType GetValue(bool& value) override { return answer(value, m_flag); }
    ZebErrorType GetValue(char* buffer, std::uint32_t& length) override
    {
        return text(m_text, buffer, length);
    }
    ZebErrorType GetValue(std::uint8_t*, std::uint32_t, std::uint32_t&) override
    {
        return refuse();
    }
    ZebErrorType GetValues(const char** values, std::uint32_t& count) override
    {
        return list(m_entryTexts, values, count);
    }
    ZebErrorType GetValues(std::int64_t*, std::uint32_t&) override { return refuse(); }
    ZebErrorType GetEntry(ZebCPP::EnumEntry&, const char*) override { return refuse(); }
    ZebErrorType GetEntries(ZebCPP::EnumEntry*, std::uint32_t&) override { return refuse(); }
    ZebErrorType GetRange(std::int64_t& minimum, std::int64_t& maximum) override
    {
        minimum = m_minimum;
        return answer(maximum, m_maximum);
    }
    ZebErrorType GetRange(double& minimum, double& maximum) override
    {
        minimum = m_lowest;
        return answer(maximum, m_highest);
    }
    ZebErrorType HasIncrement(bool& hasIncrement) override
    {
        return answer(hasIncrement, m_hasIncrement);
    }
    ZebErrorType GetIncrement(std::int64_t& increment) override
    {
        return answer(increment, m_increment);
    }
    ZebErrorType GetIncrement(double& increment) override { return answer(increment, m_step); }
    ZebErrorType GetValidValueSet(std::int64_t*, std::uint32_t, std::uint32_t*) override
    {
        return refuse();
    }
    ZebErrorType IsValueAvailable(std::int64_t, bool& available) override
    {
        return answer(available, true);
    }
    ZebErrorType IsValueAvailable(const char*, bool& available) override
    {
        return answer(available, true);
    }
    ZebErrorType SetValue(std::int64_t value) override { return answer(m_integer, value); }
    ZebErrorType SetValue(double value) override { return answer(m_number, value); }
    ZebErrorType SetValue(bool value) override { return answer(m_flag, value); }
    ZebErrorType SetValue(const char* value) override { return answer(m_text, std::string(value)); }
    ZebErrorType SetValue(const std::uint8_t*, std::uint32_t) override { return refuse(); }
    ZebErrorType RunCommand() override { return refuse(); }
    ZebErrorType IsCommandDone(bool& done) override { return answer(done, true); }
    ZebErrorType GetName(char* buffer, std::uint32_t& length) override
    {
        return text(m_name, buffer, length);
    }
    ZebErrorType GetDisplayName(char* buffer, std::uint32_t& length) override
    {
        return text(m_displayName, buffer, length);
    }
    ZebErrorType GetCategory(char* buffer, std::uint32_t& length) override
    {
        return text(m_category, buffer, length);
    }
    ZebErrorType GetUnit(char* buffer, std::uint32_t& length) override
    {
        return text(m_unit, buffer, length);
    }
    ZebErrorType GetRepresentation(char* buffer, std::uint32_t& length) override
    {
        return text(m_representation, buffer, length);
    }
    ZebErrorType GetToolTip(char* buffer, std::uint32_t& length) override
    {
        return text(m_toolTip, buffer, length);
    }
    ZebErrorType GetDescription(char* buffer, std::uint32_t& length) override
    {
        return text(m_description, buffer, length);
    }
    ZebErrorType GetDataType(ZebFeatureDataType& dataType) override
    {
        return answer(dataType, m_type);
    }
    ZebErrorType GetFlags(ZebFeatureFlagsType& flags) override { return answer(flags, m_flags); }
    ZebErrorType GetVisibility(ZebFeatureVisibilityType& visibility) override
    {
        return answer(visibility, m_visibility);
    }
    ZebErrorType GetSelectedFeatures(ZebCPP::FeaturePtr* features, std::uint32_t& count) override
    {
        return list(m_selected, features, count);
    }
    ZebErrorType IsReadable(bool& readable) override { return answer(readable, m_readable); }
    ZebErrorType IsWritable(bool& writable) override { return answer(writable, m_writable); }
    ZebErrorType RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer) override
    {
        ++*m_calls;
        m_observers.push_back(observer);
        return ZebErrorSuccess;
    }
    ZebErrorType UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer) override
    {
        ++*m_calls;
        const auto end = std::remove(m_observers.begin(), m_observers.end(), observer);
        m_observers.erase(end, m_observers.end());
        return ZebErrorSuccess;
    }

private:
    template <typename Type> ZebErrorType answer(Type& output, const Type& value)
    {
        ++*m_calls;
        output = value;
        return ZebErrorSuccess;
    }
    ZebErrorType text(const std::string& value, char* buffer, std::uint32_t& length)
    {
        ++*m_calls;
        return answerText(value, buffer, length);
    }
    template <typename Item>
    ZebErrorType list(const std::vector<Item>& items, Item* buffer, std::uint32_t& count)
    {
        ++*m_calls;
        return answerList(items, buffer, count);
    }
    ZebErrorType refuse()
    {
        ++*m_calls;
        return ZebErrorInvalidAccess;
    }

    const std::shared_ptr<std::size_t> m_calls;
    std::string m_name;
    std::string m_displayName;
    std::string m_category;
    std::string m_unit;
    std::string m_representation;
    std::string m_toolTip;
    std::string m_description;
    std::string m_text;
    std::vector<std::string> m_entries;
    std::vector<const char*> m_entryTexts;
    ZebFeatureDataType m_type = ZebFeatureDataUnknown;
    ZebFeatureFlagsType m_flags = ZebFeatureFlagsNone;
    ZebFeatureVisibilityType m_visibility = ZebFeatureVisibilityUnknown;
    bool m_readable = false;
    bool m_writable = false;
    bool m_hasIncrement = false;
    bool m_flag = false;
    std::int64_t m_integer = 0;
    std::int64_t m_minimum = 0;
    std::int64_t m_maximum = 0;
    std::int64_t m_increment = 1;
    double m_number = 0.0;
    double m_lowest = 0.0;
    double m_highest = 0.0;
    double m_step = 1.0;
    std::vector<ZebCPP::FeaturePtr> m_selected;
    std::vector<ZebCPP::IFeatureObserverPtr> m_observers;
};

} // namespace

PlainCamera::PlainCamera(const sim::FeatureDescriptions& features)
    : m_features(Features::create())
    , m_calls(std::make_shared<std::size_t>(0))
{
    const sim::Camera original(features);
    for (const ZebCPP::FeaturePtr& feature : original.features())
        m_features->append(std::make_shared<PlainFeature>(feature, m_calls));
}

PlainCamera::~PlainCamera() = default;

FeatureManager::Wrappers PlainCamera::wrappers() const
{
    return FeatureManager::wrap(*m_features);
}

ZebCPP::FeaturePtr PlainCamera::feature(const char* name) const
{
    for (const ZebCPP::FeaturePtr& feature : *m_features)
        if (static_cast<PlainFeature&>(*feature).name() == name)
            return feature;
    return {};
}

std::size_t PlainCamera::calls() const
{
    return *m_calls;
}

void PlainCamera::resetCalls()
{
    *m_calls = 0;
}

void PlainCamera::notify(const ZebCPP::FeaturePtr& feature)
{
    const auto observers = static_cast<PlainFeature&>(*feature).observers();
    for (const ZebCPP::IFeatureObserverPtr& observer : observers)
        observer->FeatureChanged(feature);
}

sim::FeatureDescriptions cameraWith(int features, int regions, const sim::SensorSize& sensor)
{
    sim::FeatureDescriptions own = sim::joined({
        sim::identity("Brontax Vision GmbH", "Measured"),
        sim::acquisition(),
        sim::sensor(sensor),
        sim::pixelFormat({"Mono8", "Mono12"}),
        sim::binning({"Sensor", "Logic"}),
        sim::reversal(),
        sim::imageRegion(sensor),
        sim::autoFunctionAoi(sensor, sim::AutoFunctionAoi::Switched),
    });
    if (regions > 0)
        own = sim::joined({own,
                           sim::multipleRegions(sensor, regions, sim::RegionSelector::Enumeration,
                                                "MultipleRegionEnable")});
    const int missing = features - static_cast<int>(own.size());
    return sim::joined({own, sim::fillers("Custom", std::max(0, missing))});
}

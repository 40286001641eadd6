#include "GenicamFeature.h"

#include "NodeWriting.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace genicam {

namespace {

/// What is older is read from the camera again: another client may have changed it.
constexpr std::chrono::seconds longestTrust{1};

/// No description is trusted with the memory.
constexpr std::uint64_t largestRegister = 1 << 24;

template <typename Number>
constexpr ZebFeatureDataType typeFor
    = std::is_same_v<Number, double> ? ZebFeatureDataFloat : ZebFeatureDataInt;

/// The second half of the two-call pattern; the first when there is no buffer.
template <typename Item>
ZebErrorType answerList(const std::vector<Item>& items, Item* buffer, std::uint32_t& count)
{
    const std::uint32_t capacity = count;
    count = static_cast<std::uint32_t>(items.size());
    if (!buffer)
        return ZebErrorSuccess;
    if (capacity < count)
        return ZebErrorBadParameter;
    std::copy(items.begin(), items.end(), buffer);
    return ZebErrorSuccess;
}

} // namespace

GenicamFeature::GenicamFeature(ArvGcFeatureNode* node, Place place,
                               std::shared_ptr<DeviceLink> link, std::shared_ptr<ChangeWatch> watch)
    : m_node(node)
    , m_place(std::move(place))
    , m_link(std::move(link))
    , m_watch(std::move(watch))
    , m_type(typeOf(node))
    , m_name(textOf(arv_gc_feature_node_get_name(node)))
    , m_displayName(textOf(arv_gc_feature_node_get_display_name(node)))
    , m_unit(unitOf(node))
    , m_representation(representationOf(node))
    , m_toolTip(textOf(arv_gc_feature_node_get_tooltip(node)))
    , m_description(textOf(arv_gc_feature_node_get_description(node)))
    , m_visibility(visibilityOf(node))
    , m_isBackedByCamera(hasRegister(node))
    , m_entries(entriesOf(node))
{
    if (m_displayName.empty())
        m_displayName = m_name;
}

// Reading

bool GenicamFeature::isOutOfDate(Kind kind)
{
    const auto now = std::chrono::steady_clock::now();
    const std::uint64_t age = m_watch->age();
    const std::lock_guard lock(m_mutex);
    Reading& last = m_readings[kind];
    const bool isFirst = last.time == std::chrono::steady_clock::time_point();
    const bool isOld = last.age != age || (!isFirst && now - last.time > longestTrust);
    if (isOld || isFirst)
        last = {age, now};
    return isOld;
}

template <typename Work> ZebErrorType GenicamFeature::read(Kind kind, Work&& work)
{
    return m_link->perform(isOutOfDate(kind), work);
}

template <typename Plain>
ZebErrorType GenicamFeature::readPlain(ZebFeatureDataType type, Plain& plain)
{
    const bool isEntryNumber = std::is_same_v<Plain, std::int64_t> && m_type == ZebFeatureDataEnum;
    if (m_type != type && !isEntryNumber)
        return ZebErrorBadParameter;
    Value value;
    const ZebErrorType result = read(OfValue, [&](GError** error) {
        if (!accessOf(m_node, error).isReadable)
            return ZebErrorInvalidAccess;
        value = readValue(m_node, error);
        return ZebErrorSuccess;
    });
    if (result != ZebErrorSuccess)
        return result;
    plain = std::get<Plain>(value);
    m_watch->seen(m_place.index, value);
    return ZebErrorSuccess;
}

ZebErrorType GenicamFeature::GetValue(char* buffer, std::uint32_t& length)
{
    std::string value;
    if (m_type == ZebFeatureDataString) {
        const ZebErrorType result = readPlain(ZebFeatureDataString, value);
        if (result != ZebErrorSuccess)
            return result;
        if (!m_place.vendorPrefix.empty())
            value = m_place.vendorPrefix + " (" + value + ")";
        return answer(value, buffer, length);
    }
    std::int64_t number = 0;
    ZebErrorType result = readPlain(ZebFeatureDataEnum, number);
    if (result == ZebErrorSuccess) {
        result = read(OfEntries, [&](GError** error) {
            const Entry* const entry = findEntry(m_entries, number, error);
            if (!entry)
                return ZebErrorInvalidValue; // the camera's own is none of them
            value = entry->name;
            return ZebErrorSuccess;
        });
    }
    return result == ZebErrorSuccess ? answer(value, buffer, length) : result;
}

ZebErrorType GenicamFeature::GetValue(std::uint8_t* buffer, std::uint32_t bufferSize,
                                      std::uint32_t& sizeFilled)
{
    if (m_type != ZebFeatureDataRaw)
        return ZebErrorBadParameter;
    return read(OfValue, [&](GError** error) {
        if (!accessOf(m_node, error).isReadable)
            return ZebErrorInvalidAccess;
        const auto size = arv_gc_register_get_length(ARV_GC_REGISTER(m_node), error);
        if (size > largestRegister)
            return ZebErrorResources;
        std::vector<std::uint8_t> bytes(size);
        if (buffer && !*error)
            arv_gc_register_get(ARV_GC_REGISTER(m_node), bytes.data(), bytes.size(), error);
        sizeFilled = bufferSize;
        return answerList(bytes, buffer, sizeFilled);
    });
}

bool GenicamFeature::look()
{
    if (m_type == ZebFeatureDataCommand || m_type == ZebFeatureDataRaw)
        return true;
    Value value;
    bool isWritable = false;
    const ZebErrorType result = m_link->perform(
        true,
        [&](GError** error) {
            const Access access = accessOf(m_node, error);
            isWritable = access.isWritable;
            if (!*error && access.isReadable)
                value = readValue(m_node, error);
            return ZebErrorSuccess;
        },
        true);
    if (result == ZebErrorTimeout || result == ZebErrorBadHandle)
        return false;
    m_watch->seen(m_place.index, value);
    if (std::exchange(m_wasWritable, isWritable).value_or(isWritable) != isWritable)
        m_watch->written({m_place.index});
    return true;
}

std::string GenicamFeature::readText()
{
    std::string value;
    m_link->perform(true, [&](GError** error) {
        if (m_type != ZebFeatureDataCommand && accessOf(m_node, error).isReadable)
            value = textOf(arv_gc_feature_node_get_value_as_string(m_node, error));
        return ZebErrorSuccess;
    });
    return value;
}

// Lists

ZebErrorType GenicamFeature::GetValues(const char** values, std::uint32_t& count)
{
    if (m_type != ZebFeatureDataEnum)
        return ZebErrorBadParameter;
    std::vector<const char*> names;
    for (const Entry& entry : m_entries)
        names.push_back(entry.name.c_str());
    return answerList(names, values, count);
}

ZebErrorType GenicamFeature::GetValues(std::int64_t* values, std::uint32_t& count)
{
    if (m_type != ZebFeatureDataEnum)
        return ZebErrorBadParameter;
    return read(OfEntries, [&](GError** error) {
        std::vector<std::int64_t> numbers;
        for (const Entry& entry : m_entries) {
            if (!*error)
                numbers.push_back(entry.readNumber(error));
        }
        return answerList(numbers, values, count);
    });
}

ZebErrorType GenicamFeature::GetEntry(ZebCPP::EnumEntry& entry, const char* name)
{
    if (m_type != ZebFeatureDataEnum || !name)
        return ZebErrorBadParameter;
    if (!findEntry(m_entries, name))
        return ZebErrorNotFound;
    entry = {};
    return ZebErrorSuccess;
}

ZebErrorType GenicamFeature::GetEntries(ZebCPP::EnumEntry* entries, std::uint32_t& count)
{
    return m_type == ZebFeatureDataEnum
        ? answerList(std::vector<ZebCPP::EnumEntry>(m_entries.size()), entries, count)
        : ZebErrorBadParameter;
}

ZebErrorType GenicamFeature::IsValueAvailable(std::int64_t value, bool& available)
{
    if (m_type != ZebFeatureDataEnum)
        return ZebErrorBadParameter;
    return read(OfEntries, [&](GError** error) {
        const Entry* const entry = findEntry(m_entries, value, error);
        available = entry && entry->isAvailable(error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::IsValueAvailable(const char* value, bool& available)
{
    if (m_type != ZebFeatureDataEnum || !value)
        return ZebErrorBadParameter;
    const Entry* const entry = findEntry(m_entries, value);
    return read(OfEntries, [&](GError** error) {
        available = entry && entry->isAvailable(error);
        return ZebErrorSuccess;
    });
}

// The library knows of none.
ZebErrorType GenicamFeature::GetValidValueSet(std::int64_t* values, std::uint32_t,
                                              std::uint32_t* setSize)
{
    if (m_type != ZebFeatureDataInt || (!values && !setSize))
        return ZebErrorBadParameter;
    if (setSize)
        *setSize = 0;
    return ZebErrorSuccess;
}

ZebErrorType GenicamFeature::GetSelectedFeatures(ZebCPP::FeaturePtr* features, std::uint32_t& count)
{
    std::vector<ZebCPP::FeaturePtr> selected;
    for (const auto& one : m_selected) {
        if (auto feature = one.lock())
            selected.push_back(std::move(feature));
    }
    return answerList(selected, features, count);
}

// Range and increment

template <typename Number> ZebErrorType GenicamFeature::readLimits(Range<Number>& range)
{
    if (m_type != typeFor<Number>)
        return ZebErrorBadParameter;
    return read(OfRange, [&](GError** error) {
        range = readRange<Number>(m_node, error);
        return ZebErrorSuccess;
    });
}

template <typename Number> ZebErrorType GenicamFeature::readBounds(Number& minimum, Number& maximum)
{
    Range<Number> range{};
    const ZebErrorType result = readLimits(range);
    if (result != ZebErrorSuccess || range.isAbsurd())
        return result != ZebErrorSuccess ? result : ZebErrorNotFound;
    std::tie(minimum, maximum) = std::tie(range.minimum, range.maximum);
    return ZebErrorSuccess;
}

template <typename Number> ZebErrorType GenicamFeature::readIncrement(Number& increment)
{
    Range<Number> range{};
    const ZebErrorType result = readLimits(range);
    if (result != ZebErrorSuccess)
        return result;
    increment = range.increment;
    return increment > 0 ? ZebErrorSuccess : ZebErrorNotFound;
}

ZebErrorType GenicamFeature::HasIncrement(bool& hasIncrement)
{
    Range<double> range{};
    const ZebErrorType result = m_type == ZebFeatureDataFloat
        ? readLimits(range)
        : tell(range.increment, range.increment);
    hasIncrement = m_type == ZebFeatureDataInt || range.increment > 0.0;
    return result;
}

// Writing

// A masked register is read and written as a whole, so it must not be an old one that is read.
template <typename Work> ZebErrorType GenicamFeature::send(Work&& work)
{
    return m_link->perform(true, [&](GError** error) {
        const bool isWritable = accessOf(m_node, error).isWritable;
        return *error || !isWritable ? ZebErrorInvalidAccess : work(error);
    });
}

template <typename Work> ZebErrorType GenicamFeature::writeBy(Work&& work)
{
    const ZebErrorType result = send(work);
    m_watch->written(result == ZebErrorSuccess ? m_watch->graph().touchedBy(m_place.index)
                                               : DependencyGraph::Places());
    return result;
}

ZebErrorType GenicamFeature::write(const Value& value)
{
    return writeBy([&](GError** error) { return writeValue(m_node, value, error); });
}

ZebErrorType GenicamFeature::SetValue(const std::uint8_t* data, std::uint32_t size)
{
    return writeBy([&](GError** error) { return writeBytes(m_node, data, size, error); });
}

ZebErrorType GenicamFeature::writeUnnoticed(const std::string& value)
{
    return send([&](GError** error) {
        if (m_type == ZebFeatureDataCommand)
            arv_gc_command_execute(ARV_GC_COMMAND(m_node), error);
        else
            arv_gc_feature_node_set_value_from_string(m_node, value.c_str(), error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::RunCommand()
{
    if (m_type != ZebFeatureDataCommand)
        return ZebErrorBadParameter;
    return writeBy([&](GError** error) {
        arv_gc_command_execute(ARV_GC_COMMAND(m_node), error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::IsCommandDone(bool& done)
{
    if (m_type != ZebFeatureDataCommand)
        return ZebErrorBadParameter;
    return m_link->perform(true, [&](GError** error) {
        done = genicam::isCommandDone(m_node, error);
        return ZebErrorSuccess;
    });
}

// Descriptions, which need no camera

ZebErrorType GenicamFeature::answer(const std::string& text, char* buffer,
                                    std::uint32_t& length) const
{
    if (m_link->isClosed())
        return ZebErrorBadHandle;
    const std::vector<char> characters(text.c_str(), text.c_str() + text.size() + 1);
    return answerList(characters, buffer, length);
}

// Access

ZebErrorType GenicamFeature::readAccess(bool Access::*part, bool& output)
{
    return read(OfAccess, [&](GError** error) {
        output = accessOf(m_node, error).*part;
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::GetFlags(ZebFeatureFlagsType& flags)
{
    return read(OfAccess, [&](GError** error) {
        const Access access = accessOf(m_node, error);
        flags = static_cast<ZebFeatureFlagsType>((access.isReadable ? ZebFeatureFlagsRead : 0U)
                                                 | (access.isWritable ? ZebFeatureFlagsWrite : 0U));
        return ZebErrorSuccess;
    });
}

} // namespace genicam

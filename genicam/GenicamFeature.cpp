#include "GenicamFeature.h"

#include <algorithm>
#include <cstring>
#include <tuple>

namespace genicam {

namespace {

/// What is older is read from the camera again: another client may have changed it.
constexpr std::chrono::seconds longestTrust{1};

/// No description is trusted with the memory.
constexpr std::uint64_t largestRegister = 1 << 24;

template <typename Number>
constexpr ZebFeatureDataType typeFor
    = std::is_same_v<Number, double> ? ZebFeatureDataFloat : ZebFeatureDataInt;

void setNumber(ArvGcFeatureNode* node, std::int64_t value, GError** error)
{
    arv_gc_integer_set_value(ARV_GC_INTEGER(node), value, error);
}

void setNumber(ArvGcFeatureNode* node, double value, GError** error)
{
    arv_gc_float_set_value(ARV_GC_FLOAT(node), value, error);
}

std::string text(const char* source)
{
    return source ? source : "";
}

ZebFeatureVisibilityType visibilityOf(ArvGcFeatureNode* node)
{
    switch (arv_gc_feature_node_get_visibility(node)) {
    case ARV_GC_VISIBILITY_INVISIBLE:
        return ZebFeatureVisibilityInvisible;
    case ARV_GC_VISIBILITY_GURU:
        return ZebFeatureVisibilityGuru;
    case ARV_GC_VISIBILITY_EXPERT:
        return ZebFeatureVisibilityExpert;
    default:
        return ZebFeatureVisibilityBeginner;
    }
}

bool hasRegister(ArvGcFeatureNode* node)
{
    if (ARV_IS_GC_REGISTER_NODE(node))
        return true;
    const std::vector<Link> links = linksOf(node);
    return std::any_of(links.begin(), links.end(), [](const Link& link) {
        return link.first == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE && hasRegister(link.second);
    });
}

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
    , m_name(text(arv_gc_feature_node_get_name(node)))
    , m_displayName(text(arv_gc_feature_node_get_display_name(node)))
    , m_unit(unitOf(node))
    , m_representation(representationOf(node))
    , m_toolTip(text(arv_gc_feature_node_get_tooltip(node)))
    , m_description(text(arv_gc_feature_node_get_description(node)))
    , m_visibility(visibilityOf(node))
    , m_isBackedByCamera(hasRegister(node))
    , m_entries(entriesOf(node))
{
    if (m_displayName.empty())
        m_displayName = m_name;
    for (ArvGcFeatureNode* entry : m_entries)
        m_entryNames.push_back(text(arv_gc_feature_node_get_name(entry)));
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
            for (std::size_t i = 0; i < m_entries.size() && !*error; ++i) {
                if (arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(m_entries[i]), error) == number)
                    return value = m_entryNames[i], ZebErrorSuccess;
            }
            return ZebErrorInvalidValue; // the camera's own is none of them
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
    const ZebErrorType result = m_link->perform(
        true,
        [&](GError** error) {
            if (accessOf(m_node, error).isReadable)
                value = readValue(m_node, error);
            return ZebErrorSuccess;
        },
        true);
    if (result == ZebErrorTimeout || result == ZebErrorBadHandle)
        return false;
    m_watch->seen(m_place.index, value);
    return true;
}

std::string GenicamFeature::readText()
{
    std::string value;
    m_link->perform(true, [&](GError** error) {
        if (m_type != ZebFeatureDataCommand && accessOf(m_node, error).isReadable)
            value = text(arv_gc_feature_node_get_value_as_string(m_node, error));
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
    for (const std::string& name : m_entryNames)
        names.push_back(name.c_str());
    return answerList(names, values, count);
}

ZebErrorType GenicamFeature::GetValues(std::int64_t* values, std::uint32_t& count)
{
    if (m_type != ZebFeatureDataEnum)
        return ZebErrorBadParameter;
    return read(OfEntries, [&](GError** error) {
        std::vector<std::int64_t> numbers;
        for (ArvGcFeatureNode* entry : m_entries) {
            if (!*error)
                numbers.push_back(arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry), error));
        }
        return answerList(numbers, values, count);
    });
}

ZebErrorType GenicamFeature::GetEntry(ZebCPP::EnumEntry& entry, const char* name)
{
    if (m_type != ZebFeatureDataEnum || !name)
        return ZebErrorBadParameter;
    if (std::find(m_entryNames.begin(), m_entryNames.end(), name) == m_entryNames.end())
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
        available = false;
        for (ArvGcFeatureNode* entry : m_entries) {
            if (!*error && arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry), error) == value)
                available = !*error && isEntryAvailable(entry, error);
        }
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::IsValueAvailable(const char* value, bool& available)
{
    if (m_type != ZebFeatureDataEnum || !value)
        return ZebErrorBadParameter;
    const auto found = std::find(m_entryNames.begin(), m_entryNames.end(), value);
    return read(OfEntries, [&](GError** error) {
        available = found != m_entryNames.end()
            && isEntryAvailable(m_entries[static_cast<std::size_t>(found - m_entryNames.begin())],
                                error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::GetValidValueSet(std::int64_t* values, std::uint32_t bufferSize,
                                              std::uint32_t* setSize)
{
    if (m_type != ZebFeatureDataInt || (!values && !setSize))
        return ZebErrorBadParameter;
    static_cast<void>(bufferSize);
    if (setSize)
        *setSize = 0; // the library knows of none
    return ZebErrorSuccess;
}

void GenicamFeature::setSelected(std::vector<std::weak_ptr<GenicamFeature>> selected)
{
    m_selected = std::move(selected);
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
template <typename Work> ZebErrorType GenicamFeature::write(ZebFeatureDataType type, Work&& work)
{
    if (type != m_type)
        return m_link->isClosed() ? ZebErrorBadHandle : ZebErrorBadParameter;
    const ZebErrorType result = m_link->perform(true, [&](GError** error) {
        const bool isWritable = accessOf(m_node, error).isWritable;
        if (*error || !isWritable)
            return ZebErrorInvalidAccess;
        return work(error);
    });
    m_watch->written(result == ZebErrorSuccess ? m_watch->graph().touchedBy(m_place.index)
                                               : DependencyGraph::Places());
    return result;
}

ZebErrorType GenicamFeature::SetValue(std::int64_t value)
{
    if (m_type == ZebFeatureDataEnum) {
        return write(ZebFeatureDataEnum, [&](GError** error) {
            for (ArvGcFeatureNode* entry : m_entries) {
                const auto number = arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(entry), error);
                if (*error || number == value) {
                    if (*error || !isEntryAvailable(entry, error))
                        break;
                    arv_gc_enumeration_set_int_value(ARV_GC_ENUMERATION(m_node), value, error);
                    return ZebErrorSuccess;
                }
            }
            return ZebErrorBadParameter;
        });
    }
    return writeNumber(value);
}

template <typename Number> ZebErrorType GenicamFeature::writeNumber(Number value)
{
    return write(typeFor<Number>, [&](GError** error) {
        const auto range = readRange<Number>(m_node, error);
        if (!*error && !range.holds(value))
            return ZebErrorBadParameter;
        if (!*error)
            setNumber(m_node, value, error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::SetValue(bool value)
{
    return write(ZebFeatureDataBool, [&](GError** error) {
        arv_gc_boolean_set_value(ARV_GC_BOOLEAN(m_node), value, error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::SetValue(const char* value)
{
    if (!value)
        return ZebErrorBadParameter;
    if (m_type == ZebFeatureDataEnum) {
        const auto found = std::find(m_entryNames.begin(), m_entryNames.end(), value);
        return write(ZebFeatureDataEnum, [&](GError** error) {
            if (found == m_entryNames.end())
                return ZebErrorBadParameter;
            const auto place = static_cast<std::size_t>(found - m_entryNames.begin());
            if (!isEntryAvailable(m_entries[place], error))
                return ZebErrorBadParameter;
            arv_gc_enumeration_set_string_value(ARV_GC_ENUMERATION(m_node), value, error);
            return ZebErrorSuccess;
        });
    }
    return write(ZebFeatureDataString, [&](GError** error) {
        const auto longest = arv_gc_string_get_max_length(ARV_GC_STRING(m_node), error);
        if (!*error && longest > 0 && std::strlen(value) > static_cast<std::size_t>(longest))
            return ZebErrorBadParameter;
        if (!*error)
            arv_gc_string_set_value(ARV_GC_STRING(m_node), value, error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::SetValue(const std::uint8_t* data, std::uint32_t size)
{
    return write(ZebFeatureDataRaw, [&](GError** error) {
        const auto length = arv_gc_register_get_length(ARV_GC_REGISTER(m_node), error);
        if (!*error && (!data || size != length))
            return ZebErrorBadParameter;
        if (!*error)
            arv_gc_register_set(ARV_GC_REGISTER(m_node), data, size, error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::writeUnnoticed(const std::string& value)
{
    return m_link->perform(true, [&](GError** error) {
        const bool isWritable = accessOf(m_node, error).isWritable;
        if (*error || !isWritable)
            return ZebErrorInvalidAccess;
        if (m_type == ZebFeatureDataCommand)
            arv_gc_command_execute(ARV_GC_COMMAND(m_node), error);
        else
            arv_gc_feature_node_set_value_from_string(m_node, value.c_str(), error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::RunCommand()
{
    return write(ZebFeatureDataCommand, [&](GError** error) {
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

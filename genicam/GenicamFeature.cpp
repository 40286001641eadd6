#include "GenicamFeature.h"

#include <algorithm>
#include <tuple>

namespace genicam {

namespace {

/// No description is trusted with the memory.
constexpr std::uint64_t largestRegister = 1 << 24;

template <typename Plain>
constexpr ZebFeatureDataType typeFor = std::is_same_v<Plain, double> ? ZebFeatureDataFloat
    : std::is_same_v<Plain, bool>                                    ? ZebFeatureDataBool
    : std::is_same_v<Plain, std::string>                             ? ZebFeatureDataString
                                                                     : ZebFeatureDataInt;

/// The second half of the two-call pattern; the first when there is no buffer.
template <typename Item>
ZebErrorType answerList(const std::vector<Item>& items, Item* buffer, std::uint32_t& count)
{
    const std::uint32_t capacity = count;
    count = static_cast<std::uint32_t>(items.size());
    if (buffer && capacity < count)
        return ZebErrorBadParameter;
    if (buffer)
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
    , m_visibility(visibilityOf(node))
    , m_texts(textsOf(node))
    , m_entries(entriesOf(node))
{
}

ZebErrorType GenicamFeature::read(Kind kind, ZebFeatureDataType type, const DeviceLink::Work& work)
{
    return m_type == type ? m_link->perform(work, &m_readings[kind]) : ZebErrorBadParameter;
}

template <typename Plain> ZebErrorType GenicamFeature::readPlain(Plain& plain)
{
    const bool isEntryNumber = std::is_same_v<Plain, Integer> && m_type == ZebFeatureDataEnum;
    Value value;
    const ZebErrorType result
        = read(OfValue, isEntryNumber ? m_type : typeFor<Plain>, [&](GError** error) {
              if (!accessOf(m_node, error).isReadable)
                  return ZebErrorInvalidAccess;
              value = readValue(m_node, error);
              return ZebErrorSuccess;
          });
    if (result != ZebErrorSuccess)
        return result;
    plain = std::get<Plain>(value);
    m_watch->seen(m_place.index, value, false);
    return ZebErrorSuccess;
}

ZebErrorType GenicamFeature::GetValue(char* buffer, Count& length)
{
    std::string text;
    ZebErrorType result = ZebErrorBadParameter;
    if (m_type == ZebFeatureDataEnum) {
        Integer number = 0;
        result = readPlain(number);
        if (result == ZebErrorSuccess) {
            result = read(OfEntries, m_type, [&](GError** error) {
                const std::optional<Entry> entry = findEntry(m_entries, number, error);
                text = entry ? entry->name : std::string();
                return entry ? ZebErrorSuccess : ZebErrorInvalidValue;
            });
        }
    } else {
        result = readPlain(text);
        if (!m_place.vendorPrefix.empty())
            text = m_place.vendorPrefix + " (" + text + ")";
    }
    return result == ZebErrorSuccess ? tell(text, buffer, length) : result;
}

ZebErrorType GenicamFeature::GetValue(std::uint8_t* buffer, Count bufferSize, Count& sizeFilled)
{
    return read(OfValue, ZebFeatureDataRaw, [&](GError** error) {
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

bool GenicamFeature::look(Reading* last)
{
    if (m_type == ZebFeatureDataCommand || m_type == ZebFeatureDataRaw)
        return true;
    Value value;
    bool isLockNew = false;
    const DeviceLink::Work work = [&](GError** error) {
        const Access access = accessOf(m_node, error);
        if (!*error && access.isReadable)
            value = readValue(m_node, error);
        if (!*error)
            isLockNew = std::exchange(m_wasWritable, access.isWritable) == !access.isWritable;
        return ZebErrorSuccess;
    };
    if (m_link->perform(work, last, !last) != ZebErrorSuccess)
        return false;
    m_watch->seen(m_place.index, value, !last);
    if (isLockNew)
        m_watch->written(m_place.index);
    return true;
}

std::string GenicamFeature::readText()
{
    std::string value;
    m_link->perform([&](GError** error) {
        if (m_type != ZebFeatureDataCommand && accessOf(m_node, error).isReadable)
            value = textOf(arv_gc_feature_node_get_value_as_string(m_node, error));
        return ZebErrorSuccess;
    });
    return value;
}

ZebErrorType GenicamFeature::whenOpen(ZebFeatureDataType type) const
{
    return m_link->isClosed() ? ZebErrorBadHandle
        : m_type == type      ? ZebErrorSuccess
                              : ZebErrorBadParameter;
}

ZebErrorType GenicamFeature::GetValues(const char** values, Count& count)
{
    std::vector<const char*> names;
    for (const Entry& entry : m_entries)
        names.push_back(entry.name.c_str());
    const ZebErrorType result = whenOpen(ZebFeatureDataEnum);
    return result == ZebErrorSuccess ? answerList(names, values, count) : result;
}

ZebErrorType GenicamFeature::GetValues(Integer* values, Count& count)
{
    return read(OfEntries, ZebFeatureDataEnum, [&](GError** error) {
        std::vector<Integer> numbers;
        for (const Entry& entry : m_entries)
            numbers.push_back(*error ? 0 : entry.readNumber(error));
        return answerList(numbers, values, count);
    });
}

ZebErrorType GenicamFeature::GetEntry(ZebCPP::EnumEntry& entry, const char* name)
{
    entry = {};
    const ZebErrorType result = name ? whenOpen(ZebFeatureDataEnum) : ZebErrorBadParameter;
    const bool isMissing = result == ZebErrorSuccess && !findEntry(m_entries, name, nullptr);
    return isMissing ? ZebErrorNotFound : result;
}

ZebErrorType GenicamFeature::GetEntries(ZebCPP::EnumEntry* entries, Count& count)
{
    const std::vector<ZebCPP::EnumEntry> list(m_entries.size());
    const ZebErrorType result = whenOpen(ZebFeatureDataEnum);
    return result == ZebErrorSuccess ? answerList(list, entries, count) : result;
}

template <typename Key> ZebErrorType GenicamFeature::isEntryThere(const Key& key, bool& is)
{
    return read(OfEntries, ZebFeatureDataEnum, [&](GError** error) {
        const std::optional<Entry> entry = findEntry(m_entries, key, error);
        is = entry && isThere(entry->node, error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::IsValueAvailable(const char* value, bool& is)
{
    return value ? isEntryThere(std::string(value), is) : ZebErrorBadParameter;
}

// The library knows of none.
ZebErrorType GenicamFeature::GetValidValueSet(Integer* values, Count, Count* setSize)
{
    if (setSize)
        *setSize = 0;
    return values || setSize ? whenOpen(ZebFeatureDataInt) : ZebErrorBadParameter;
}

ZebErrorType GenicamFeature::GetSelectedFeatures(ZebCPP::FeaturePtr* features, Count& count)
{
    return read(OfEntries, m_type, [&](GError**) {
        std::vector<ZebCPP::FeaturePtr> selected;
        for (const auto& [type, node] : linksOf(m_node)) {
            if (type == ARV_GC_PROPERTY_NODE_TYPE_P_SELECTED)
                selected.push_back(m_watch->featureOf(node));
        }
        selected.erase(std::remove(selected.begin(), selected.end(), nullptr), selected.end());
        return answerList(selected, features, count);
    });
}

template <typename Number> ZebErrorType GenicamFeature::readLimits(Range<Number>& range)
{
    return read(OfRange, typeFor<Number>, [&](GError** error) {
        range = readRange<Number>(m_node, error);
        return ZebErrorSuccess;
    });
}

template <typename Number> ZebErrorType GenicamFeature::readBounds(Number& low, Number& high)
{
    Range<Number> range{};
    const ZebErrorType result = readLimits(range);
    if (result != ZebErrorSuccess || range.isAbsurd())
        return result != ZebErrorSuccess ? result : ZebErrorNotFound;
    std::tie(low, high) = std::tie(range.minimum, range.maximum);
    return ZebErrorSuccess;
}

template <typename Number> ZebErrorType GenicamFeature::readIncrement(Number& increment)
{
    Range<Number> range{};
    const ZebErrorType result = readLimits(range);
    if (result == ZebErrorSuccess)
        increment = range.increment;
    return result == ZebErrorSuccess && !(increment > 0) ? ZebErrorNotFound : result;
}

ZebErrorType GenicamFeature::HasIncrement(bool& hasIncrement)
{
    Range<double> range{};
    const ZebErrorType result
        = m_type == ZebFeatureDataFloat ? readLimits(range) : whenOpen(m_type);
    hasIncrement = m_type == ZebFeatureDataInt || range.increment > 0.0;
    return result;
}

// A masked register is read and written as a whole, so it must not be an old one that is read.
ZebErrorType GenicamFeature::send(const DeviceLink::Work& work)
{
    return m_link->perform([&](GError** error) {
        const bool isWritable = accessOf(m_node, error).isWritable;
        return *error || !isWritable ? ZebErrorInvalidAccess : work(error);
    });
}

ZebErrorType GenicamFeature::sendNoticed(const DeviceLink::Work& work)
{
    const ZebErrorType result = send(work);
    if (result == ZebErrorSuccess)
        m_watch->written(m_place.index);
    else
        m_link->forget();
    return result;
}

template <typename Plain> ZebErrorType GenicamFeature::write(const Plain& value)
{
    return sendNoticed([&](GError** error) { return genicam::write(m_node, value, error); });
}

ZebErrorType GenicamFeature::SetValue(const char* value)
{
    return value ? write(std::string(value)) : ZebErrorBadParameter;
}

ZebErrorType GenicamFeature::SetValue(const std::uint8_t* data, Count size)
{
    return data ? write(std::vector<std::uint8_t>(data, data + size)) : ZebErrorBadParameter;
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
    return sendNoticed([&](GError** error) {
        arv_gc_command_execute(ARV_GC_COMMAND(m_node), error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::IsCommandDone(bool& done)
{
    if (m_type != ZebFeatureDataCommand)
        return ZebErrorBadParameter;
    return m_link->perform([&](GError** error) {
        done = genicam::isCommandDone(m_node, error);
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::tell(const std::string& text, char* buffer, Count& length) const
{
    if (m_link->isClosed())
        return ZebErrorBadHandle;
    const std::vector<char> characters(text.c_str(), text.c_str() + text.size() + 1);
    return answerList(characters, buffer, length);
}

ZebErrorType GenicamFeature::tell(TextKind kind, char* buffer, Count& length) const
{
    return tell(m_texts[kind], buffer, length);
}

ZebErrorType GenicamFeature::GetDataType(ZebFeatureDataType& dataType)
{
    dataType = m_type;
    return whenOpen(m_type);
}

ZebErrorType GenicamFeature::GetVisibility(ZebFeatureVisibilityType& visibility)
{
    visibility = m_visibility;
    return whenOpen(m_type);
}

// Whatever differs from now on is to be told.
ZebErrorType GenicamFeature::RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
{
    const ZebErrorType result = m_link->isClosed()
        ? ZebErrorBadHandle
        : m_watch->observers().add(m_place.index, observer);
    if (result == ZebErrorSuccess)
        look(&m_readings[OfValue]);
    return result;
}

ZebErrorType GenicamFeature::UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
{
    return m_link->isClosed() ? ZebErrorBadHandle
                              : m_watch->observers().remove(m_place.index, observer);
}

ZebErrorType GenicamFeature::GetFlags(ZebFeatureFlagsType& flags)
{
    return read(OfAccess, m_type, [&](GError** error) {
        const Access access = accessOf(m_node, error);
        flags = static_cast<ZebFeatureFlagsType>((access.isReadable ? ZebFeatureFlagsRead : 0U)
                                                 | (access.isWritable ? ZebFeatureFlagsWrite : 0U));
        return ZebErrorSuccess;
    });
}

ZebErrorType GenicamFeature::has(ZebFeatureFlagsType flag, bool& is)
{
    ZebFeatureFlagsType flags{};
    const ZebErrorType result = GetFlags(flags);
    is = (flags & flag) != 0;
    return result;
}

} // namespace genicam

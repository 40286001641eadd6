#include "FeatureStore.h"

#include "Reaction.h"
#include "State.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

// Reactions that chase each other end here; honest models stay far below.
constexpr int maximumDepth = 32;

bool matchesType(ZebFeatureDataType type, const Value& value)
{
    switch (type) {
    case ZebFeatureDataInt:
        return value.holds<std::int64_t>();
    case ZebFeatureDataFloat:
        return value.holds<double>();
    case ZebFeatureDataBool:
        return value.holds<bool>();
    case ZebFeatureDataString:
        return value.holds<std::string>();
    case ZebFeatureDataRaw:
        return value.holds<Bytes>();
    case ZebFeatureDataEnum:
        return value.holds<std::string>() || value.holds<std::int64_t>();
    default:
        return false;
    }
}

// The camera's own writes and those of a test name numbers as they please.
Value converted(ZebFeatureDataType type, const Value& value)
{
    switch (type) {
    case ZebFeatureDataInt:
        return value.toInteger();
    case ZebFeatureDataFloat:
        return value.toNumber();
    case ZebFeatureDataBool:
        return value.toBoolean();
    case ZebFeatureDataEnum:
    case ZebFeatureDataString:
        return value.toText();
    default:
        return value;
    }
}

} // namespace

FeatureStore::FeatureStore(FeatureDescriptions descriptions)
{
    m_indexes.reserve(descriptions.size());
    for (FeatureDescription& description : descriptions) {
        m_names.push_back(description.name);
        m_indexes.emplace(m_names.back(), m_slots.size());
        Slot slot;
        slot.value = description.value;
        slot.valueOf = description.valueOf;
        slot.description = std::make_shared<const FeatureDescription>(std::move(description));
        m_slots.push_back(std::move(slot));
    }
    linkSelectors();
    for (std::size_t index = 0; index < m_slots.size(); ++index) {
        evaluateRules(index);
        if (m_slots[index].description->computed)
            m_slots[index].lastComputed = value(index);
    }
}

void FeatureStore::linkSelectors()
{
    for (std::size_t index = 0; index < m_slots.size(); ++index) {
        const std::string& selector = m_slots[index].description->selector;
        m_slots[index].selector = selector.empty() ? none : find(selector);
        if (m_slots[index].selector != none)
            m_slots[m_slots[index].selector].selected.push_back(index);
    }
}

std::size_t FeatureStore::find(std::string_view name) const
{
    const auto found = m_indexes.find(name);
    return found == m_indexes.end() ? none : found->second;
}

const FeatureDescription& FeatureStore::description(std::size_t index) const
{
    return *m_slots[index].description;
}

std::shared_ptr<const FeatureDescription> FeatureStore::sharedDescription(std::size_t index) const
{
    return m_slots[index].description;
}

const std::vector<std::size_t>& FeatureStore::selectedBy(std::size_t selector) const
{
    return m_slots[selector].selected;
}

// Reading

void FeatureStore::noteReader(std::size_t reader, std::size_t index) const
{
    if (reader != none && reader != index)
        m_slots[index].readers.insert(reader);
}

std::int64_t FeatureStore::key(std::size_t selector) const
{
    const Value selected = value(selector);
    if (description(selector).type != ZebFeatureDataEnum)
        return selected.toInteger();
    const EnumItem* entry = description(selector).entry(selected.toText());
    return entry ? entry->value : 0;
}

const Value& FeatureStore::stored(const Slot& slot, std::int64_t entry) const
{
    const auto found = slot.valueOf.find(entry);
    return found == slot.valueOf.end() ? slot.value : found->second;
}

Value FeatureStore::valueFor(std::size_t reader, std::size_t index) const
{
    noteReader(reader, index);
    const Slot& slot = m_slots[index];
    if (slot.description->computed)
        return slot.description->computed(State(*this, index));
    return slot.selector == none ? slot.value : stored(slot, keyFor(reader, slot.selector));
}

Value FeatureStore::valueFor(std::size_t reader, std::size_t index, std::int64_t entry) const
{
    noteReader(reader, index);
    const Slot& slot = m_slots[index];
    if (slot.description->computed)
        return slot.description->computed(State(*this, index, slot.selector, entry));
    return stored(slot, entry);
}

Value FeatureStore::valueAt(std::size_t index, std::int64_t entry) const
{
    return valueFor(none, index, entry);
}

std::int64_t FeatureStore::keyFor(std::size_t reader, std::size_t selector) const
{
    noteReader(reader, selector);
    return key(selector);
}

bool FeatureStore::isStreamingFor(std::size_t reader) const
{
    if (reader != none)
        m_streamingReaders.insert(reader);
    return m_streaming;
}

IntegerRange FeatureStore::integerRange(std::size_t index) const
{
    const auto& rule = description(index).integerRange;
    return rule ? rule(State(*this, index)) : IntegerRange();
}

FloatRange FeatureStore::floatRange(std::size_t index) const
{
    const auto& rule = description(index).floatRange;
    return rule ? rule(State(*this, index)) : FloatRange();
}

bool FeatureStore::isReadable(std::size_t index) const
{
    const FeatureDescription& feature = description(index);
    return feature.type != ZebFeatureDataCommand
        && (!feature.readable || feature.readable(State(*this, index)));
}

bool FeatureStore::isWritable(std::size_t index) const
{
    const FeatureDescription& feature = description(index);
    if (feature.isReadOnly || (feature.isLockedWhileStreaming && isStreamingFor(index)))
        return false;
    return !feature.writable || feature.writable(State(*this, index));
}

bool FeatureStore::isAvailable(std::size_t index, const std::string& entry) const
{
    const FeatureDescription& feature = description(index);
    return feature.entry(entry)
        && (!feature.entryAvailable || feature.entryAvailable(State(*this, index), entry));
}

bool FeatureStore::isCommandDone(std::size_t index) const
{
    return Clock::now() >= m_slots[index].commandEnd;
}

// Run for what the rules read: it ties the feature to those that it depends on.
void FeatureStore::evaluateRules(std::size_t index) const
{
    const FeatureDescription& feature = description(index);
    if (feature.computed || m_slots[index].selector != none)
        valueFor(index, index);
    if (feature.integerRange)
        integerRange(index);
    if (feature.floatRange)
        floatRange(index);
    isReadable(index);
    isWritable(index);
    if (feature.entryAvailable)
        for (const EnumItem& entry : feature.entries)
            isAvailable(index, entry.name);
}

// Writing

ZebErrorType FeatureStore::write(std::size_t index, const Value& value, Rounding rounding,
                                 ChangeSet& changes)
{
    const FeatureDescription& feature = description(index);
    if (!matchesType(feature.type, value))
        return ZebErrorBadParameter;
    if (!isWritable(index))
        return ZebErrorInvalidAccess;

    Value legal = value;
    if (const ZebErrorType result = legalise(index, rounding, legal); result != ZebErrorSuccess)
        return result;
    if (feature.accepts) {
        const ZebErrorType result = feature.accepts(State(*this, index), legal);
        if (result != ZebErrorSuccess)
            return result;
    }
    store(index, legal, changes);
    return ZebErrorSuccess;
}

ZebErrorType FeatureStore::legalise(std::size_t index, Rounding rounding, Value& value) const
{
    switch (description(index).type) {
    case ZebFeatureDataInt: {
        const IntegerRange range = integerRange(index);
        if (rounding == Rounding::Nearest)
            value = nearestLegal(range, value.toInteger());
        const auto& valid = description(index).validValues;
        const bool isListed = valid.empty()
            || std::find(valid.begin(), valid.end(), value.toInteger()) != valid.end();
        return isListed && isLegal(range, value.toInteger()) ? ZebErrorSuccess
                                                             : ZebErrorInvalidValue;
    }
    case ZebFeatureDataFloat: {
        const FloatRange range = floatRange(index);
        const bool isNumber = value.toNumber() == value.toNumber();
        if (rounding == Rounding::Nearest && isNumber)
            value = nearestLegal(range, value.toNumber());
        return isLegal(range, value.toNumber()) ? ZebErrorSuccess : ZebErrorInvalidValue;
    }
    case ZebFeatureDataEnum:
        return legaliseEntry(index, value);
    default:
        return ZebErrorSuccess;
    }
}

ZebErrorType FeatureStore::legaliseEntry(std::size_t index, Value& value) const
{
    const FeatureDescription& feature = description(index);
    if (value.holds<std::int64_t>()) {
        const EnumItem* entry = feature.entry(value.toInteger());
        if (!entry)
            return ZebErrorInvalidValue;
        value = entry->name;
    }
    return isAvailable(index, value.toText()) ? ZebErrorSuccess : ZebErrorInvalidValue;
}

ZebErrorType FeatureStore::run(std::size_t index, ChangeSet& changes)
{
    const auto feature = sharedDescription(index);
    if (feature->type != ZebFeatureDataCommand)
        return ZebErrorBadParameter;
    if (!isWritable(index))
        return ZebErrorInvalidAccess;
    m_slots[index].commandEnd = Clock::now() + feature->commandDuration;
    changes.add(index);
    if (feature->reaction) {
        Reaction reaction(*this, changes);
        feature->reaction(reaction);
    }
    return ZebErrorSuccess;
}

void FeatureStore::store(std::size_t index, const Value& given, ChangeSet& changes)
{
    Slot& slot = m_slots[index];
    if (slot.selector != none) {
        storeAt(index, key(slot.selector), given, changes);
        return;
    }
    Value value = converted(slot.description->type, given);
    if (slot.value == value)
        return;
    slot.value = std::move(value);
    touch(index, changes);
    // Whoever read a per-entry value has read its selector, too, and is told already.
    for (const std::size_t selected : slot.selected)
        changes.add(selected);
}

void FeatureStore::storeAt(std::size_t index, std::int64_t entry, const Value& given,
                           ChangeSet& changes)
{
    Slot& slot = m_slots[index];
    if (slot.selector == none) {
        store(index, given, changes);
        return;
    }
    Value value = converted(slot.description->type, given);
    if (stored(slot, entry) == value)
        return;
    slot.valueOf[entry] = std::move(value);
    touch(index, changes);
}

void FeatureStore::touch(std::size_t index, ChangeSet& changes)
{
    changes.add(index);
    if (m_depth >= maximumDepth)
        return;
    ++m_depth;
    touchReaders(m_slots[index].readers, changes);
    const auto feature = sharedDescription(index);
    if (feature->reaction) {
        Reaction reaction(*this, changes);
        feature->reaction(reaction);
    }
    --m_depth;
}

void FeatureStore::touchReaders(const std::set<std::size_t>& readers, ChangeSet& changes)
{
    // Rules that run here may add readers, so a copy is walked.
    const std::vector<std::size_t> affected(readers.begin(), readers.end());
    for (const std::size_t reader : affected) {
        Slot& slot = m_slots[reader];
        evaluateRules(reader);
        if (!slot.description->computed) {
            changes.add(reader);
            continue;
        }
        Value now = value(reader);
        if (now == slot.lastComputed)
            continue;
        slot.lastComputed = std::move(now);
        touch(reader, changes);
    }
}

void FeatureStore::fit(std::size_t index, ChangeSet& changes)
{
    const FeatureDescription& feature = description(index);
    const Value current = value(index);
    if (feature.type == ZebFeatureDataInt)
        store(index, legalBelow(integerRange(index), current.toInteger()), changes);
    else if (feature.type == ZebFeatureDataFloat)
        store(index, legalBelow(floatRange(index), current.toNumber()), changes);
    else if (feature.type == ZebFeatureDataEnum && !isAvailable(index, current.toText()))
        for (const EnumItem& entry : feature.entries)
            if (isAvailable(index, entry.name)) {
                store(index, entry.name, changes);
                return;
            }
}

void FeatureStore::setStreaming(bool streaming, ChangeSet& changes)
{
    if (m_streaming == streaming)
        return;
    m_streaming = streaming;
    touchReaders(m_streamingReaders, changes);
}

void FeatureStore::describe(std::size_t index, FeatureDescription description, ChangeSet& changes)
{
    Slot& slot = m_slots[index];
    description.name = slot.description->name;
    description.selector = slot.description->selector;
    const bool hasNewValue = description.value != slot.description->value;
    slot.description = std::make_shared<const FeatureDescription>(std::move(description));
    evaluateRules(index);
    changes.add(index);
    if (hasNewValue)
        store(index, slot.description->value, changes);
}

} // namespace sim

// Writes by clients and by the camera itself, and what follows from them.

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

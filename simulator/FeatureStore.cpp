#include "FeatureStore.h"

#include "State.h"

#include <utility>

namespace sim {

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

} // namespace sim

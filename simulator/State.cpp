#include "State.h"

#include "FeatureStore.h"

namespace sim {

bool State::has(std::string_view name) const
{
    return m_store.find(name) != FeatureStore::none;
}

Value State::value(std::string_view name) const
{
    const std::size_t index = m_store.find(name);
    if (index == FeatureStore::none)
        return {};
    const bool isPinned
        = m_selector != FeatureStore::none && m_store.selectorOf(index) == m_selector;
    return isPinned ? m_store.valueFor(m_reader, index, m_entry)
                    : m_store.valueFor(m_reader, index);
}

Value State::valueAt(std::string_view name, std::int64_t entry) const
{
    const std::size_t index = m_store.find(name);
    return index == FeatureStore::none ? Value() : m_store.valueFor(m_reader, index, entry);
}

std::int64_t State::integer(std::string_view name, std::int64_t fallback) const
{
    const Value found = value(name);
    return found.isEmpty() ? fallback : found.toInteger();
}

std::int64_t State::integerAt(std::string_view name, std::int64_t entry,
                              std::int64_t fallback) const
{
    const Value found = valueAt(name, entry);
    return found.isEmpty() ? fallback : found.toInteger();
}

double State::number(std::string_view name, double fallback) const
{
    const Value found = value(name);
    return found.isEmpty() ? fallback : found.toNumber();
}

bool State::isOn(std::string_view name, bool fallback) const
{
    const Value found = value(name);
    return found.isEmpty() ? fallback : found.toBoolean();
}

std::string State::text(std::string_view name) const
{
    return value(name).toText();
}

std::string State::textAt(std::string_view name, std::int64_t entry) const
{
    return valueAt(name, entry).toText();
}

std::int64_t State::selected(std::string_view selector) const
{
    const std::size_t index = m_store.find(selector);
    if (index == FeatureStore::none)
        return 0;
    return index == m_selector ? m_entry : m_store.keyFor(m_reader, index);
}

std::int64_t State::entryCount(std::string_view selector) const
{
    const std::size_t index = m_store.find(selector);
    if (index == FeatureStore::none)
        return 0;
    const FeatureDescription& feature = m_store.description(index);
    return feature.type == ZebFeatureDataEnum ? static_cast<std::int64_t>(feature.entries.size())
                                              : m_store.integerRange(index).maximum + 1;
}

std::string_view State::firstOf(std::initializer_list<std::string_view> names) const
{
    for (const std::string_view name : names)
        if (has(name))
            return name;
    return *names.begin();
}

bool State::isStreaming() const
{
    return m_store.isStreamingFor(m_reader);
}

} // namespace sim

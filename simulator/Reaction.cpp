#include "Reaction.h"

#include "FeatureStore.h"

namespace sim {

// What a reaction reads does not tie its feature to others: it acts, it does not depend.
Reaction::Reaction(FeatureStore& store, ChangeSet& changes)
    : State(store, FeatureStore::none)
    , m_target(store)
    , m_changes(changes)
{
}

void Reaction::set(std::string_view name, const Value& value)
{
    const std::size_t index = m_target.find(name);
    if (index != FeatureStore::none)
        m_target.store(index, value, m_changes);
}

void Reaction::setAt(std::string_view name, std::int64_t entry, const Value& value)
{
    const std::size_t index = m_target.find(name);
    if (index != FeatureStore::none)
        m_target.storeAt(index, entry, value, m_changes);
}

void Reaction::fit(std::string_view name)
{
    const std::size_t index = m_target.find(name);
    if (index != FeatureStore::none)
        m_target.fit(index, m_changes);
}

void Reaction::setStreaming(bool streaming)
{
    m_target.setStreaming(streaming, m_changes);
}

} // namespace sim

#include "Journal.h"

namespace sim {

void Journal::record(Operations operations)
{
    m_recorded = operations;
}

void Journal::setCapacity(std::size_t entries)
{
    const std::lock_guard lock(m_mutex);
    m_capacity = entries;
    while (m_entries.size() > m_capacity)
        m_entries.pop_front();
}

void Journal::clear()
{
    const std::lock_guard lock(m_mutex);
    m_entries.clear();
    for (auto& count : m_counts)
        count = 0;
    m_questions = 0;
}

std::vector<JournalEntry> Journal::entries(Operations operations) const
{
    return entries({}, operations);
}

std::vector<JournalEntry> Journal::entries(const std::string& feature, Operations operations) const
{
    const std::lock_guard lock(m_mutex);
    std::vector<JournalEntry> selected;
    for (const JournalEntry& entry : m_entries)
        if (operations.contains(entry.operation) && (feature.empty() || feature == entry.feature))
            selected.push_back(entry);
    return selected;
}

std::size_t Journal::count(Operation operation) const
{
    return m_counts[static_cast<std::size_t>(operation)];
}

std::size_t Journal::count() const
{
    std::size_t sum = 0;
    for (const auto& count : m_counts)
        sum += count;
    return sum;
}

void Journal::add(Operation operation, const std::string& feature, const Value& value,
                  ZebErrorType result, bool isContinued)
{
    ++m_counts[static_cast<std::size_t>(operation)];
    if (!isContinued && Operations::questions().contains(operation))
        ++m_questions;
    if (!records(operation))
        return;
    const std::lock_guard lock(m_mutex);
    if (m_capacity == 0)
        return;
    if (m_entries.size() >= m_capacity)
        m_entries.pop_front();
    m_entries.push_back({operation, feature, value, result, std::this_thread::get_id()});
}

} // namespace sim

#pragma once

#include "JournalEntry.h"
#include "Operations.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <deque>
#include <mutex>
#include <vector>

namespace sim {

/// Keeps the calls that clients made through the SDK, in the order in which they took effect. Other
/// clients' writes and direct reads of the camera are not in it. Thread-safe.
///
/// GetName is counted but not kept unless asked for: clients look features up by walking the list.
class Journal
{
public:
    /// Keeps the calls of @p operations from now on; an empty set switches the journal off.
    void record(Operations operations);
    void setCapacity(std::size_t entries); ///< the oldest entries go first; 65536 at first
    void clear();                          ///< the entries and the counts

    std::vector<JournalEntry> entries(Operations operations = Operations::all()) const;
    std::vector<JournalEntry> entries(const std::string& feature, Operations operations) const;
    std::vector<JournalEntry> writes() const { return entries(Operations::writes()); }

    /// Calls since the last clear(), whether kept or not.
    std::size_t count(Operation operation) const;
    std::size_t count() const;
    /// Of Operations::questions(); a text or list that takes two calls is one.
    std::size_t questions() const { return m_questions; }

    bool records(Operation operation) const
    {
        return m_recorded.load(std::memory_order_relaxed).contains(operation);
    }
    /// @param isContinued the second of two calls for a text or list
    void add(Operation operation, const std::string& feature, const Value& value,
             ZebErrorType result, bool isContinued = false);

private:
    std::array<std::atomic<std::size_t>, operationCount> m_counts{};
    std::atomic<std::size_t> m_questions{0};
    mutable std::mutex m_mutex;
    std::atomic<Operations> m_recorded{Operations::all().without(Operation::GetName)};
    std::size_t m_capacity = 65536;
    std::deque<JournalEntry> m_entries;
};

} // namespace sim

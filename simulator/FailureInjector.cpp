#include "FailureInjector.h"

#include <utility>

namespace sim {

void FailureInjector::add(const std::string& feature, Operations operations, Failure failure,
                          Occurrence occurrence)
{
    const std::lock_guard lock(m_mutex);
    m_rules.push_back(
        {feature, operations, std::move(failure), occurrence, std::mt19937_64(occurrence.seed)});
    m_active = true;
}

void FailureInjector::clear()
{
    const std::lock_guard lock(m_mutex);
    m_rules.clear();
    m_active = false;
}

std::uint64_t FailureInjector::injected(Failure::Kind kind) const
{
    return m_injected[static_cast<std::size_t>(kind)];
}

Failure FailureInjector::next(const std::string& feature, Operation operation)
{
    if (!m_active.load(std::memory_order_relaxed))
        return {};
    const std::lock_guard lock(m_mutex);
    const Rule* winner = nullptr;
    for (Rule& rule : m_rules) {
        if (!rule.operations.contains(operation)
            || (rule.feature != anyFeature && rule.feature != feature))
            continue;
        if (rule.strikes() && !winner)
            winner = &rule;
    }
    if (!winner)
        return {};
    ++m_injected[static_cast<std::size_t>(winner->failure.kind)];
    return winner->failure;
}

bool FailureInjector::Rule::strikes()
{
    ++calls;
    if (calls < occurrence.first || calls - occurrence.first >= occurrence.count)
        return false;
    // Compared by hand: the standard distributions differ between libraries, a seed must not.
    constexpr double scale = 1.0 / 18446744073709551616.0;
    return occurrence.probability >= 1.0
        || static_cast<double>(random()) * scale < occurrence.probability;
}

} // namespace sim

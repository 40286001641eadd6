#pragma once

#include <cstddef>
#include <unordered_set>
#include <vector>

namespace sim {

/// The features whose value, range or access one write has changed, each once, in the order of
/// cause and effect: the written one comes first.
class ChangeSet
{
public:
    /// Returns whether the feature was not in the set yet.
    bool add(std::size_t feature)
    {
        const bool isNew = m_known.insert(feature).second;
        if (isNew)
            m_features.push_back(feature);
        return isNew;
    }
    const std::vector<std::size_t>& features() const { return m_features; }

private:
    std::unordered_set<std::size_t> m_known;
    std::vector<std::size_t> m_features;
};

} // namespace sim

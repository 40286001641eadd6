#pragma once

#include "Node.h"

#include <cstddef>
#include <map>
#include <set>
#include <vector>

namespace genicam {

/// Which features a write may change, as the description tells: those whose value, limits, access
/// or selection goes back to a node that the write goes through. The library tells nobody of a
/// changed value.
class DependencyGraph
{
public:
    using Places = std::set<std::size_t>;

    DependencyGraph() = default;
    explicit DependencyGraph(const std::vector<ArvGcFeatureNode*>& features);

    /// The features that a write to one of them touches, all by their places in the list.
    const Places& touchedBy(std::size_t feature) const { return m_touched[feature]; }
    /// The same for any node; needs the device's lock.
    Places touchedBy(ArvGcFeatureNode* node) const;

private:
    std::map<ArvGcFeatureNode*, Places> m_dependents;
    std::vector<Places> m_touched;
};

} // namespace genicam

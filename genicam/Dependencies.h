#pragma once

#include "Node.h"

#include <cstddef>
#include <set>
#include <vector>

namespace genicam {

/// Places in a list of nodes.
using Places = std::set<std::size_t>;

/// For each node those that a write to it may change, as the description tells: whose value,
/// limits, access or selection goes back to a node that the write goes through. The library tells
/// nobody of a changed value.
std::vector<Places> touchedByWrites(const std::vector<ArvGcFeatureNode*>& nodes);

} // namespace genicam

#pragma once

#include "Snapshot.h"

namespace sim {

class State;

/// Gathers the snapshot from whichever of the features' names the camera has.
Snapshot readSnapshot(const State& state);

} // namespace sim

#pragma once

class Session;

/// What holds on an honest camera at any time.
namespace Invariants {

/// No region reaches beyond the sensor.
void checkRegions(Session& session);

/// How many pairs of the camera's regions overlap.
int countOverlaps(Session& session);

/// Lets the page come to rest and looks whether it shows what the camera holds, and whether it has
/// written anything meanwhile.
void checkAtRest(Session& session);

} // namespace Invariants

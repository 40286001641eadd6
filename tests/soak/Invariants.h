#pragma once

class Session;

/// What holds on an honest camera at any time.
namespace Invariants {

/// Reading selects regions; a region outside the picture switches the automatic function off.
constexpr auto readersWrites = "SubRegionSelector|AutofunctionAOIEnable";

/// No region reaches beyond the sensor.
void checkRegions(Session& session);
/// How many pairs of the camera's regions overlap.
int countOverlaps(Session& session);
/// At rest the page shows what the camera holds, and has written nothing.
void checkAtRest(Session& session);

} // namespace Invariants

#pragma once

#include "regions/automatic/RegionLimits.h"
#include "regions/label/SensorRegion.h"

#include <QString>

/// The region of cameras with "DSPSubregion..." features, by its edges in image pixels; right and
/// bottom lie behind the region.
struct DspEdges
{
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
};

/// Whether the region is not empty and lies within the limits.
bool isValidDspRegion(const DspEdges& edges, const RegionLimits& limits);

/// Whether the far edge of an axis (right, bottom) is written before the near one, so that the
/// camera never sees near and far edge cross.
bool writesFarEdgeFirst(double currentNear, double currentFar, double newNear, double newFar);

/// What is wrong with the edges, for the user; empty when all is well.
QString dspRegionProblems(const DspEdges& edges, const RegionLimits& limits);

/// The region to draw: cut to the limits, never negative.
SensorRegion drawnDspRegion(const DspEdges& edges, const RegionLimits& limits);

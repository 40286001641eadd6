#pragma once

/// A region along one axis by its edges, in image pixels; the far one lies behind the region.
struct EdgeSpan
{
    double nearEdge = 0.0;
    double farEdge = 0.0;
};

/// The edges for an extent drawn on the label. One that would collapse on the camera's grid becomes
/// one increment thick, and moves only where it would leave @p limit.
EdgeSpan edgesForExtent(double offset, double extent, double limit, double increment);

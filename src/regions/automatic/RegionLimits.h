#pragma once

#include <QtGlobal>

/// The largest size of the region that the camera's automatic functions evaluate, in image pixels.
struct RegionLimits
{
    qint64 width = 0;
    qint64 height = 0;
};

// Cameras with "AutofunctionAOI..." features derive the limits from the image size. The division by
// the increment is not truncated; each axis adds the minimum of the other axis's offset, and only
// the height subtracts the image's minimum when it is no multiple of the increment. The cameras
// agree with all of this. The other families need no arithmetic: they take the maximum of
// "AutoModeRegion..." or the image size.

/// @param height of the image
/// @param increment of "AutofunctionAOIHeight"
/// @param minimumHeight of the image
/// @param minimumOffsetX of "AutofunctionAOIOffsetX"
qint64 aoiHeightLimit(double height, double increment, double minimumHeight, double minimumOffsetX);

/// @param width of the image
/// @param increment of "AutofunctionAOIWidth"
/// @param minimumOffsetY of "AutofunctionAOIOffsetY"
qint64 aoiWidthLimit(double width, double increment, double minimumOffsetY);

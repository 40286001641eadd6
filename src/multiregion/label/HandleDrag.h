#pragma once

#include "multiregion/label/HandleGrab.h"

#include <QSize>

#include <set>

/// Directions in which constraint lines keep a band from moving.
enum class MoveDirection {
    Left = 1,
    Right = 2,
    Up = 3,
    Down = 4,
};

/// How constraint lines hold a band that is being moved. A bound of -1 is none; as it stands, it
/// lets the band protrude by one pixel.
struct MoveConstraints
{
    std::set<MoveDirection> blocked;
    QPoint lowerBound{-1, -1}; ///< of the band's position, label pixels
};

/// The band after the pointer has moved by @p delta; all of it stays on the image of size
/// @p image at right and bottom. Label pixels.
QRect movedRegionBand(const QRect& band, const QPoint& delta, const QSize& image,
                      const MoveConstraints& constraints);

/// Least and greatest distance of a band's first and last pixel.
struct BandSizeLimits
{
    QSize minimum;
    QSize maximum{-1, -1};
};

/// The band after the grabbed edges have gone to @p point, label pixels.
///
/// Left and top are bounded by the image and the minimum, not by the maximum. The top right corner
/// bounds its right edge by the image alone: the band may collapse to less than the minimum, also
/// to a negative width.
/// @param grab everything but Move
QRect resizedRegionBand(const QRect& band, HandleGrab grab, const QPoint& point,
                        const BandSizeLimits& limits);

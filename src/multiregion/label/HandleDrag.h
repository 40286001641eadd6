#pragma once

#include "multiregion/label/HandleGrab.h"

#include <QSet>
#include <QSize>

/// Directions in which constraint lines keep a band from moving.
enum class MoveDirection {
    Left = 1,
    Right = 2,
    Up = 3,
    Down = 4,
};

inline uint qHash(MoveDirection direction, uint seed = 0)
{
    return ::qHash(static_cast<int>(direction), seed);
}

/// How constraint lines hold a band that is being moved. A bound of -1 is none; as it stands, it
/// lets the band protrude by one pixel.
struct MoveConstraints
{
    QSet<MoveDirection> blocked;
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

/// Of two overlapping regions the one with the higher number is in conflict.
/// @param other the region that overlaps, -1 for none
constexpr bool isConflict(int region, int other)
{
    return other >= 0 && other < region;
}

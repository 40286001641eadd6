#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

#include <optional>
#include <set>

// The drag of a region's band, label pixels.

enum class BandEdge {
    Leading,  ///< left or top
    Trailing, ///< right or bottom
};

/// The edges of which a press takes hold; with none it takes all of the band.
struct HandleGrab
{
    std::optional<BandEdge> horizontal;
    std::optional<BandEdge> vertical;

    bool isMove() const { return !horizontal && !vertical; }
};

/// The zones are four pixels wide inside the band, without its last column and row.
HandleGrab handleGrabAt(const QRect& band, const QPoint& point);

Qt::CursorShape cursorForGrab(const HandleGrab& grab);

/// Directions in which constraint lines keep a band from moving.
enum class MoveDirection {
    Left = 1,
    Right = 2,
    Up = 3,
    Down = 4,
};

/// How lines hold a band that is moved. A bound of -1, which lets it protrude by a pixel, is none.
struct MoveConstraints
{
    std::set<MoveDirection> blocked;
    QPoint lowerBound{-1, -1}; ///< of the band's position
};

/// The band after the pointer has moved by @p delta; it stays on the image at right and bottom.
QRect movedRegionBand(const QRect& band, const QPoint& delta, const QSize& image,
                      const MoveConstraints& constraints);

/// Least and greatest distance of a band's first and last pixel.
struct BandSizeLimits
{
    QSize minimum;
    QSize maximum{-1, -1};
};

/// The band after the grabbed edges have gone to @p point. Left and top are bounded by the image
/// and the minimum, not by the maximum. The top right corner bounds its right edge by the image
/// alone: the band may collapse to less than the minimum, also to a negative width.
QRect resizedRegionBand(const QRect& band, const HandleGrab& grab, const QPoint& point,
                        const BandSizeLimits& limits);

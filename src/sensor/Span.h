#pragma once

#include <QRect>
#include <Qt>

/// One axis of a rectangle, in pixels of the rectangle.
struct RegionSpan
{
    int start = 0;
    int length = 0;

    /// The pixel behind the last one.
    constexpr int end() const { return start + length; }
};

constexpr bool operator==(const RegionSpan& a, const RegionSpan& b)
{
    return a.start == b.start && a.length == b.length;
}

constexpr bool operator!=(const RegionSpan& a, const RegionSpan& b)
{
    return !(a == b);
}

constexpr bool overlap(const RegionSpan& a, const RegionSpan& b)
{
    return a.start < b.end() && b.start < a.end();
}

/// @param axis Qt::Horizontal for x and width, Qt::Vertical for y and height
inline RegionSpan spanOf(const QRect& rect, Qt::Orientation axis)
{
    return axis == Qt::Horizontal ? RegionSpan{rect.x(), rect.width()}
                                  : RegionSpan{rect.y(), rect.height()};
}

inline QRect withSpan(const QRect& rect, Qt::Orientation axis, const RegionSpan& span)
{
    return axis == Qt::Horizontal ? QRect(span.start, rect.y(), span.length, rect.height())
                                  : QRect(rect.x(), span.start, rect.width(), span.length);
}

inline int lengthOf(const QSize& size, Qt::Orientation axis)
{
    return axis == Qt::Horizontal ? size.width() : size.height();
}

/// A rectangle on plain axes; rectangles that only touch do not overlap.
inline bool overlap(const QRect& a, const QRect& b)
{
    return overlap(spanOf(a, Qt::Horizontal), spanOf(b, Qt::Horizontal))
        && overlap(spanOf(a, Qt::Vertical), spanOf(b, Qt::Vertical));
}

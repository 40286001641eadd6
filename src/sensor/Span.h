#pragma once

#include <QRect>
#include <Qt>

#include <cmath>

/// One axis of a rectangle, in whole pixels, or in exact ones as a camera tells them.
template <typename Number> struct Span
{
    Number start{};
    Number length{};

    /// The pixel behind the last one.
    constexpr Number end() const { return start + length; }
};

template <typename Number> constexpr Span<Number> spanBetween(Number start, Number end)
{
    return {start, end - start};
}

template <typename Number> constexpr bool operator==(const Span<Number>& a, const Span<Number>& b)
{
    return a.start == b.start && a.length == b.length;
}

template <typename Number> constexpr bool operator!=(const Span<Number>& a, const Span<Number>& b)
{
    return !(a == b);
}

template <typename Number> constexpr bool overlap(const Span<Number>& a, const Span<Number>& b)
{
    return a.start < b.end() && b.start < a.end();
}

/// In the middle of @p whole, @p factor times as long; what is less than a pixel long is dropped.
inline Span<double> centredSpan(double whole, double factor)
{
    const double length = std::trunc(whole * factor);
    return {(whole - length) * 0.5, length};
}

/// @param axis Qt::Horizontal for x and width, Qt::Vertical for y and height
template <typename Number = int> Span<Number> spanOf(const QRect& rect, Qt::Orientation axis)
{
    return axis == Qt::Horizontal ? Span<Number>{Number(rect.x()), Number(rect.width())}
                                  : Span<Number>{Number(rect.y()), Number(rect.height())};
}

inline QRect withSpan(const QRect& rect, Qt::Orientation axis, const Span<int>& span)
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

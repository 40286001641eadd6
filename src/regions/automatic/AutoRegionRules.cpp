#include "regions/automatic/AutoRegionRules.h"

#include "features/NumberConversion.h"
#include "sensor/PixelRect.h"

#include <algorithm>
#include <cmath>

namespace {

/// Differs from @p value by floating-point rounding only.
double scaledThroughIncrement(double value, double increment)
{
    return increment > 0.0 ? (value / increment) * increment : value;
}

bool exceeds(const Span<double>& span, double origin, double limit)
{
    return limit < (span.start - origin) + span.length;
}

bool isValid(const Span<double>& edges, double limit)
{
    return edges.length > 0.0 && edges.start < limit && edges.end() <= limit;
}

// A camera with two such regions may count one of them from behind the other.
Span<double> cutBySize(const Span<double>& span, double origin, double limit)
{
    return {std::max(0.0, std::min(span.start - origin, limit)), std::min(span.length, limit)};
}

Span<double> cutByEdges(const Span<double>& span, double limit)
{
    const double end = std::min(span.end(), limit);
    return spanBetween(std::min(span.start, end), end);
}

QRect truncated(const Span<double>& horizontal, const Span<double>& vertical)
{
    return truncatedRect(horizontal.start, vertical.start, horizontal.length, vertical.length);
}

} // namespace

double aoiHeightLimit(double height, double increment, double minimumHeight, double minimumOffsetX)
{
    const double wholeHeight = std::trunc(height);
    const int wholeIncrement = toInt(increment);
    const bool offGrid = wholeIncrement > 0 && std::fmod(wholeHeight, wholeIncrement) != 0.0;
    const double remainder = offGrid ? minimumHeight : 0.0;
    return std::trunc(scaledThroughIncrement(wholeHeight - remainder, increment) + minimumOffsetX);
}

double aoiWidthLimit(double width, double increment, double minimumOffsetY)
{
    return std::trunc(scaledThroughIncrement(width, increment) + minimumOffsetY);
}

AutoRegion fromLabel(const QRect& drawn, const QPointF& origin)
{
    return {{origin.x() + drawn.x(), double(drawn.width())},
            {origin.y() + drawn.y(), double(drawn.height())}};
}

QRect drawnBySize(const AutoRegion& region, const QPointF& origin, const QSizeF& limits)
{
    return truncated(cutBySize(region.horizontal, origin.x(), limits.width()),
                     cutBySize(region.vertical, origin.y(), limits.height()));
}

QRect drawnByEdges(const AutoRegion& region, const QSizeF& limits)
{
    return truncated(cutByEdges(region.horizontal, limits.width()),
                     cutByEdges(region.vertical, limits.height()));
}

double onGrid(double value, double step)
{
    const qint64 wholeStep = std::max<qint64>(1, toInt64(step));
    const qint64 steps = toInt64(value) / wholeStep;
    return static_cast<double>(steps * wholeStep);
}

QString sizeProblem(const AutoRegion& region, const QPointF& origin, const QSizeF& limits,
                    const QString& name)
{
    if (exceeds(region.vertical, origin.y(), limits.height()))
        return AutoRegionText::tr("Invalid settings:\nHeight + OffsetY > %1 Height").arg(name);
    if (exceeds(region.horizontal, origin.x(), limits.width()))
        return AutoRegionText::tr("Invalid settings:\nWidth + OffsetX > %1 Width").arg(name);
    return {};
}

QString edgeProblems(const AutoRegion& region, const QSizeF& limits)
{
    QString problems;
    if (region.vertical.length < 0.0)
        problems += AutoRegionText::tr("\nTop > Bottom! ");
    if (region.vertical.start > limits.height())
        problems += AutoRegionText::tr("\nTop > ROI Height! ");
    if (region.vertical.end() > limits.height())
        problems += AutoRegionText::tr("\nBottom > ROI Height! ");
    if (region.horizontal.length < 0.0)
        problems += AutoRegionText::tr("Left > Right! ");
    if (region.horizontal.start > limits.width())
        problems += AutoRegionText::tr("Left > ROI Width! ");
    if (region.horizontal.end() > limits.width())
        problems += AutoRegionText::tr("Right > ROI Width! ");
    return problems;
}

bool hasValidEdges(const AutoRegion& region, const QSizeF& limits)
{
    return isValid(region.horizontal, limits.width()) && isValid(region.vertical, limits.height());
}

bool writesFarEdgeFirst(const Span<double>& current, const Span<double>& wanted)
{
    return current.start < wanted.start && current.end() < wanted.end();
}

Span<double> keptApart(const Span<double>& drawn, double limit, double increment)
{
    if (onGrid(drawn.start, increment) < onGrid(drawn.end(), increment))
        return drawn;
    const double thinnest = std::max(increment, 1.0);
    const double start
        = drawn.start + thinnest <= limit ? drawn.start : std::max(0.0, limit - thinnest);
    return {start, thinnest};
}

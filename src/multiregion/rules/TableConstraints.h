#pragma once

#include <QRect>
#include <QStringList>

#include <cstdint>
#include <optional>

/// The region whose value an edited one stands for, -1 for itself alone. Region 3 of a tile takes
/// its rows from region 2 and its columns from region 1; all else is region 0's.
/// @param constrained the features that the region shares
int masterRegion(int region, const QString& feature, const QStringList& constrained);

/// Bounds for editing a feature; empty where it keeps its own.
struct ConstrainedRange
{
    std::optional<std::int64_t> minimum;
    std::optional<std::int64_t> maximum;
};

/// Of a feature along an axis: whether it is the offset, not the size.
bool isOffset(const QString& feature);

/// The size that goes with an offset and the offset that goes with a size: its names, newest first.
QStringList counterparts(const QString& feature);

/// The bounds that keep a region inside @p range, sensor pixels.
/// @param counterpart as the region has it; without it the maximum is the feature's own
ConstrainedRange constrainedRange(const QString& feature, const QRect& range,
                                  std::optional<std::int64_t> counterpart, std::int64_t increment);

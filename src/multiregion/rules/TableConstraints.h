#pragma once

#include <QRect>
#include <QStringList>

/// The region whose value an edited one stands for, -1 for the edited region alone. Region 3 of a
/// two-by-two tile takes its rows from region 2 and its columns from region 1; every other
/// constrained feature is region 0's.
/// @param constrained the features that the region shares
int masterRegion(int region, const QString& feature, const QStringList& constrained);

/// Offset and size of a region as its table shows them, sensor pixels.
struct TableGeometry
{
    qint64 offsetX = 0;
    qint64 offsetY = 0;
    qint64 width = 0;
    qint64 height = 0;
};

/// Bounds for editing a feature; -1 keeps the feature's own.
struct ConstrainedRange
{
    qint64 minimum = -1;
    qint64 maximum = -1;
};

/// The bounds that keep a region inside @p range, sensor pixels.
/// @param increment of the feature; 0 or less rounds nothing
ConstrainedRange constrainedRange(const QString& feature, const QRect& range,
                                  const TableGeometry& present, qint64 increment);

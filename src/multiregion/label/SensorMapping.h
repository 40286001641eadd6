#pragma once

#include <QRect>
#include <QSize>
#include <Qt>

/// Where the label shows the sensor area: in its top left corner, with a factor of its own for each
/// axis, for the shown pixmap rounds its sides separately.
struct SensorMapping
{
    QSize sensor; ///< sensor pixels
    QSize shown;  ///< label pixels
};

/// Converts edges, so that touching regions do not overlap; at least one pixel wide and high.
QRect labelRect(const QRect& region, const SensorMapping& mapping);

/// The sensor pixel of an edge on the label. The image's border is the sensor's border.
int sensorEdge(int edge, Qt::Orientation axis, const SensorMapping& mapping);

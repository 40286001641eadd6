#pragma once

#include <QRect>

/// Where a label shows the sensor area: in its top left corner, scaled to fit, aspect ratio kept.
///
/// Two sizes describe the picture on the label and differ by rounding. The displayed size is
/// computed from label and sensor; the scale and the limits of a move use it. The shown size is
/// that of the pixmap on the label; the pointer and a placed band stay within it.
struct LabelGeometry
{
    QSize label;
    QSize sensor; ///< sensor pixels; all else are label pixels
    QSize shown;
};

/// Empty when label or sensor are, else no less than a line.
QSize displayedSize(const LabelGeometry& geometry);

/// The height that shows a sensor in its aspect ratio at this width; 0 without a sensor.
int heightForWidth(int width, const QSize& sensor);

/// The label shows all of the sensor's height in one line: there is nothing to drag across it.
bool isFlat(const LabelGeometry& geometry);

/// Sensor pixels per label pixel, by the widths and one factor for both axes.
double sensorPerLabel(const LabelGeometry& geometry);
/// The inverse; 0 when nothing is displayed.
double labelPerSensor(const LabelGeometry& geometry);
/// False where the sensor shrinks to nothing.
bool canPlaceBand(const LabelGeometry& geometry);

/// Cut to the shown picture at right and bottom. Regions far away stay within Qt's coordinates.
QRect bandForRegion(const QRect& region, const LabelGeometry& geometry);

/// The band of a label that has no region yet: all of its width.
QRect bandWithoutRegion(const LabelGeometry& geometry);

/// What the mouse can hold: no band is thinner while it is dragged.
QRect atLeastOnePixel(const QRect& band);

/// The band as a press and a hover find it: on a flat sensor anywhere across.
QRect bandForMouse(const QRect& band, const LabelGeometry& geometry);

/// Where a band goes while its label is being resized. An estimate that keeps a full band full; the
/// exact place follows from the region once the size has settled.
/// @param formerSize of the label, at least 1 x 1 as the one now
QRect bandForResize(const QRect& band, const QSize& formerSize, const LabelGeometry& geometry);

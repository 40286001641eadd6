#pragma once

#include <QRect>
#include <QSize>

/// Where a band goes while its label is being resized, from label pixels to label pixels. An
/// estimate that keeps a full band full; the exact place follows from the region once the size has
/// settled.
/// @param newSize the label's size, at least 1 x 1
/// @param oldSize the size before, at least 1 x 1
/// @param displayed the size of the sensor area on the resized label
QRect bandForResize(const QRect& band, const QSize& newSize, const QSize& oldSize,
                    const QSize& displayed);

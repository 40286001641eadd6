#pragma once

#include "SensorState.h"

#include <QImage>

/// Renders the frame that the camera delivers, scaled to @p size pixels; null when there is none.
/// @p frameNumber moves the hand of the pattern's clock. Pictures of more than 32 megapixels have
/// 16 bits a pixel.
QImage renderFrame(const SensorState& state, const QSize& size, qint64 frameNumber);

/// Brightness of an exposure in microseconds, 1 at 10 ms. Compressed, so that the six decades that
/// cameras offer stay between black and white.
double exposureGain(double microseconds);

/// Whether frames of this pixel format are in grey.
bool isMonochrome(const QString& pixelFormat);

#pragma once

#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

#include <cstdint>

/// Far above any sensor, far below what overflows an int.
inline int pixels(std::int64_t value)
{
    constexpr std::int64_t limit = 1 << 24;
    return static_cast<int>(qBound(-limit, value, limit));
}

/// What decides how a camera's frame looks, read at one moment.
struct SensorState
{
    QSize sensor;        ///< pixels of the sensor, not binned
    QSize picture;       ///< of the whole sensor, as the camera tells; empty: what binning leaves
    QSize binning{1, 1}; ///< sensor pixels that make one frame pixel, per axis
    bool reverseX = false;
    bool reverseY = false;
    bool multipleRegions = false;
    QVector<QRect> regions;        ///< the active regions, in binned pixels, placed after reversal
    double exposureTime = 10000.0; ///< microseconds
    QString pixelFormat;
};

inline bool operator==(const SensorState& a, const SensorState& b)
{
    return a.sensor == b.sensor && a.picture == b.picture && a.binning == b.binning
        && a.reverseX == b.reverseX && a.reverseY == b.reverseY
        && a.multipleRegions == b.multipleRegions && a.regions == b.regions
        && a.exposureTime == b.exposureTime && a.pixelFormat == b.pixelFormat;
}

inline bool operator!=(const SensorState& a, const SensorState& b)
{
    return !(a == b);
}

#pragma once

#include "regions/automatic/AutoRegion.h"
#include "regions/automatic/DspRegion.h"
#include "regions/automatic/RegionLimits.h"

#include <QPointF>
#include <QRect>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <array>

class FeatureManager;

/// The numbers that describe a region: four of them, by edges or by offset and size.
enum class RegionNumber {
    Top,
    Left,
    Right,
    Bottom,
    Width,
    Height,
};
constexpr std::size_t regionNumberCount = 6;

/// As a label or a preset takes them.
QSize sizeOf(const RegionLimits& limits);

/// The camera as far as the region of its automatic functions goes. Cameras describe that region by
/// "AutofunctionAOI..." or "AutoModeRegion..." (offset and size) or by "DSPSubregion..." (edges);
/// some have several of them, and each number then has its own order of preference.
///
/// What is missing reads 0 and is not written. Numbers are pixels of the image.
class AutoRegionCamera
{
public:
    /// A number's value and what the camera takes for it; all 0 where it is missing.
    struct State
    {
        double value = 0.0;
        double minimum = 0.0;
        double maximum = 0.0;
        double increment = 0.0;
    };

    explicit AutoRegionCamera(FeatureManager& manager);

    static bool hasAutoRegion(FeatureManager& manager);

    bool has(const QString& name) const;
    bool usesEdges() const { return m_usesEdges; }
    bool usesSizes() const { return m_usesSizes; }
    /// Whether all four numbers can be written.
    bool isRegionWritable() const;

    bool has(RegionNumber number) const { return !nameOf(number).isEmpty(); }
    /// With the maximum on the increment's grid.
    State state(RegionNumber number) const;
    /// As the camera tells, without the increment.
    State range(RegionNumber number) const;
    /// Answers what the camera then reports; @p value itself where nothing can be written.
    double write(RegionNumber number, double value);
    DspEdges edges() const;
    AutoRegionFields offsetAndSize() const;
    /// Whether offset and size are those of "AutoModeRegion...".
    bool isAutoMode() const;
    /// What is wrong with offset and size, for the user; empty when they keep to the limits.
    QString sizeProblem(const RegionLimits& limits) const;

    void write(const QString& name, double value);
    double value(const QString& name, const QString& alternative = {}) const;

    /// The offset from which the camera counts the region that the label shows.
    QPointF origin() const;
    RegionLimits limits() const;
    QSizeF imageSize() const;

    /// The sensor area after binning.
    QSize sensorSize() const;
    /// The part of the sensor that a background image shows; empty where the camera does not tell.
    /// With multiple regions it is the first one's, which becomes the selected one.
    QRect imageRegion(bool hasImage);

private:
    const QString& nameOf(RegionNumber number) const;
    State rangeOf(const QString& name) const;
    int sensorExtent(const QString& sensor, const QString& maximum, const QString& size,
                     const QString& offset) const;
    void selectFirstRegion();

    FeatureManager& m_manager;
    std::array<QString, regionNumberCount> m_names; ///< empty: the camera has no such number
    bool m_usesEdges;
    bool m_usesSizes;
};

#pragma once

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "regions/automatic/AutoRegionRules.h"

#include <QHash>
#include <QPointF>
#include <QRect>
#include <QSizeF>
#include <QStringList>

#include <array>
#include <optional>
#include <utility>
#include <vector>

/// The numbers that describe a region: four of them, by edges or by offset and size.
enum class RegionNumber {
    Top,
    Left,
    Right,
    Bottom,
    Width,
    Height,
};
constexpr std::array<RegionNumber, 6> regionNumbers{RegionNumber::Top,   RegionNumber::Left,
                                                    RegionNumber::Right, RegionNumber::Bottom,
                                                    RegionNumber::Width, RegionNumber::Height};

/// Those of one direction.
struct AxisNumbers
{
    RegionNumber start;
    RegionNumber end;
    RegionNumber size;
};
constexpr AxisNumbers horizontalNumbers{RegionNumber::Left, RegionNumber::Right,
                                        RegionNumber::Width};
constexpr AxisNumbers verticalNumbers{RegionNumber::Top, RegionNumber::Bottom,
                                      RegionNumber::Height};

/// The camera as far as the region of its automatic functions goes, which it describes by
/// "AutofunctionAOI..." or "AutoModeRegion..." (offset and size) or by "DSPSubregion..." (edges);
/// with several of them each number has its own order of preference. What the camera does not tell
/// keeps its last value, at first 0; what it lacks is 0 and is not written.
class AutoRegionCamera
{
public:
    explicit AutoRegionCamera(FeatureManager& manager);

    static bool hasAutoRegion(FeatureManager& manager);

    bool has(const QString& name) const { return m_featureNames.contains(name); }
    const QStringList& featureNames() const { return m_featureNames; }
    bool usesEdges() const { return m_usesEdges; }
    bool usesSizes() const { return m_usesSizes; }

    /// The four that tell the region.
    std::vector<RegionNumber> numbers() const;
    bool has(RegionNumber number) const { return !nameOf(number).isEmpty(); }
    Reading<double> read(RegionNumber number) { return read(nameOf(number)); }
    /// With the maximum on the increment's grid.
    Reading<double> readForField(RegionNumber number);
    double readValue(RegionNumber number) { return readValue(nameOf(number)); }
    /// Answers what the camera then reports, or had before when it does not tell.
    double write(RegionNumber number, double value);

    /// As read last.
    double value(RegionNumber number) const { return m_values.value(nameOf(number)); }
    AutoRegion region() const
    {
        return regionOf([this](RegionNumber number) { return value(number); });
    }
    /// As region(), of what @p valueOf answers for each of the four.
    template <typename ValueOf> AutoRegion regionOf(const ValueOf& valueOf) const
    {
        const auto span = [&](const AxisNumbers& axis) -> Span<double> {
            if (m_usesEdges)
                return spanBetween(valueOf(axis.start), valueOf(axis.end));
            return {valueOf(axis.start), valueOf(axis.size)};
        };
        return {span(horizontalNumbers), span(verticalNumbers)};
    }
    /// Whether all four numbers and their limits were told some time.
    bool isRegionTold() const;
    /// The offset from which the camera counts the region that the label shows.
    QPointF origin() const;
    const QSizeF& limits() const { return m_limits; }
    /// The region on the label.
    QRect drawn() const
    {
        return m_usesEdges ? drawnByEdges(region(), m_limits)
                           : drawnBySize(region(), origin(), m_limits);
    }

    /// Whether the limits changed. They are read for a new image size only, or when one is told:
    /// where size and offset bound each other they would shrink with each move.
    bool followImage(bool isSizeTold);

    void readOrigin();
    /// What the camera would allow by now; nothing unless it told all of it.
    std::optional<QSizeF> readLimits();
    Reading<double> read(const QString& name, int parts = FeatureReader::Whole)
    {
        return noted(name, m_manager.Read(name).number(parts));
    }
    double readValue(const QString& name, const QString& alternative = {});
    void writeImageSize(const QString& name, double value) { m_manager.SetValue(name, value); }
    /// Whether offset and size are those of "AutoModeRegion...".
    bool isAutoMode() const { return nameOf(RegionNumber::Left) == FeatureNames::autoModeOffsetX; }

    /// The sensor area after binning.
    QSize readSensorSize();
    /// What a background image shows: with multiple regions the first, which becomes selected.
    QRect readImageRegion(bool hasImage);

    /// What the camera did not tell since the last call.
    QStringList takeUntold() { return std::exchange(m_untold, {}); }
    int untoldCount() const { return m_untold.size(); }

private:
    const QString& nameOf(RegionNumber number) const { return m_names[std::size_t(number)]; }
    Reading<double> noted(const QString& name, const Reading<double>& reading);
    int readSensorExtent(const FeatureNames::ImageAxis& axis);

    FeatureManager& m_manager;
    const QStringList m_featureNames;                  ///< which do not change
    std::array<QString, regionNumbers.size()> m_names; ///< empty: the camera has no such number
    bool m_usesEdges = false;
    bool m_usesSizes = false;
    QStringList m_originNames;
    QHash<QString, double> m_values;
    QSizeF m_limits{0.0, 0.0};
    QSizeF m_imageSize; ///< of which they were taken
    QStringList m_untold;
};

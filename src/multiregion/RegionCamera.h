#pragma once

#include "multiregion/label/ShownRegion.h"
#include "multiregion/rules/RegionPlacement.h"

#include <QMutex>
#include <QRect>
#include <QString>

#include <optional>

class FeatureManager;
class FeatureReader;
class QVariant;

/// A region as the camera has it, sensor pixels.
struct RegionState
{
    QRect geometry;
    std::optional<RegionSizeLimits> limits; ///< when they were asked for
};

/// Except for the sensor's and the selector's, a feature is that of the region selected last, by
/// whomever: select() before every access. What the camera does not tell is empty.
///
/// Older cameras have "OffsetX" and "Width" in the place of the regions' own.
class RegionCamera
{
public:
    enum class Selection {
        Done,
        Refused,
        Unknown, ///< the camera does not tell
    };

    /// @p manager must outlive the object. Reads how many regions there are.
    explicit RegionCamera(FeatureManager* manager);

    /// 0 for a camera without regions; beyond int for one that claims so many.
    double count() const { return m_count; }

    /// Writes the selector, but no number that it does not have.
    Selection select(int region);
    QString failureOf(int region) const;
    /// What select() wrote last.
    std::optional<int> lastSelected() const { return m_lastSelected; }
    std::optional<int> readSelected() const;

    // Of the selected region:
    std::optional<bool> readOn() const;
    /// Of a region that is on: only cameras with the older switch tell that one is not valid.
    bool readIsValid() const;
    std::optional<RegionState> read(bool withLimits) const;
    std::optional<QRect> readGeometry() const;
    std::optional<QSize> readSize() const;
    std::optional<SizeRange> readSizeRange(Qt::Orientation axis) const;
    /// Answers whether the region is on afterwards.
    std::optional<bool> writeOn(bool on);
    bool writeFeature(const QString& name, const QVariant& value);
    /// Each axis begins with its size when that is not larger than @p former, else with its offset.
    /// A null rectangle shrinks the region to the camera's minimum.
    void writeGeometry(const QRect& rect, const QSize& former);

    std::optional<QSize> readSensorSize() const;

private:
    RegionCamera(FeatureManager& manager, FeatureReader selector);

    FeatureManager& m_manager;
    const bool m_isEnumerated; ///< the selector
    const double m_count;
    std::optional<int> m_lastSelected;
    QMutex m_selectorLock;
};

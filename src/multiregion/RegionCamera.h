#pragma once

#include "multiregion/label/RegionConversion.h"
#include "multiregion/rules/SizeRange.h"

#include <QRect>
#include <QString>

class FeatureManager;

/// The camera's features of its regions. Except for the sensor's and the selector's, a feature is
/// that of the region selected last, by whomever: select() before every access.
///
/// Cameras of older generations have no horizontal features of the regions' own; "OffsetX" and
/// "Width" take their place.
class RegionCamera
{
public:
    /// @p manager must outlive the object.
    explicit RegionCamera(FeatureManager* manager);

    /// 0 for a camera without regions.
    double count() const;

    /// Selects a region; answers why that failed, for the log, and an empty text otherwise.
    QString select(int region);
    /// The region that the camera has selected, -1 when it names none.
    int selected() const;

    /// What the following read counts for the selected region.
    bool isOn() const;
    /// On, and by the camera's own judgement well placed.
    bool isValid() const;
    /// Answers whether the region is on afterwards.
    bool switchOn(bool on);

    /// Sensor pixels.
    QRect geometry() const;
    SizeRange widthRange() const;
    SizeRange heightRange() const;
    RegionSizeLimits limits() const;

    /// Writes the selected region's rectangle. Each axis begins with its size when that is not
    /// larger than @p former, else with its offset. A null rectangle shrinks the region to the
    /// camera's minimum.
    void writeGeometry(const QRect& rect, const QSize& former);

    QSize sensorSize() const;

private:
    bool hasEnumeratedSelector() const;
    AxisLimits axisLimits(const SizeRange& size, const QString& offset,
                          const QString& olderOffset) const;

    FeatureManager* m_manager;
};

#pragma once

#include "host/TabExtensionInterface.h"
#include "multiregion/label/BandSurroundings.h"
#include "multiregion/label/RegionBands.h"
#include "multiregion/label/RegionDrag.h"
#include "multiregion/label/RegionStore.h"

#include <QTimer>

/// The sensor area with a band for each active region, which the user selects, moves and resizes
/// with the mouse, and with the lines that regions of one row or column share. Region rectangles
/// are sensor pixels, points are label pixels. A drag moves bands only and reports at its end; what
/// is told meanwhile waits for it.
class MultiRubberBandLabel : public BandSurroundings
{
    Q_OBJECT

public:
    MultiRubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color,
                         const QString& arrangementMode, QWidget* parent);

    void setSensorSize(const QSize& size);
    void setArrangementMode(const QString& mode);
    /// What the camera allows for a region; at first it may have any size within the sensor.
    void setRegionLimits(int regionNo, const RegionSizeLimits& limits);
    void selectRegion(int regionNo);

    /// A region's own colour, and the one that its band shows: red in a conflict.
    QColor regionColor(int regionNo) const { return m_regions.at(regionNo).color; }
    QColor shownColor(int regionNo) const;
    QRect regionRectangle(int regionNo) const { return m_regions.at(regionNo).rectangle; }
    bool isRegionShown(int regionNo) const { return m_regions.at(regionNo).band; }

    std::optional<int> intersecting(int region, const QRect& band) const override
    {
        return m_regions.intersecting(region, band);
    }
    bool canBeFollowed(int region, const QRect& band) const override
    {
        return m_regions.groups().isEmpty()
            || membersCanFollow(m_regions.shown(), m_regions.groups(), region, band);
    }

    /// Announces the shown colours again, and arranges what was told while the signals were
    /// blocked; without this call that comes with the next turn of the event loop.
    void announceRegions();

    QSize sizeHint() const override;

signals:
    void labelGeometryChanged(double factorX, double factorY, QSize newSize);
    void rubberChangeStarted(QPoint point);
    void rubberChangeFinished(QPoint point);
    void mouseMoved(QPoint point);
    /// The user pressed on a region.
    void regionSelected(int regionNo);
    void loggingMessage(ZebViewerLogCategory category, const QString& message);
    void regionGeometryChanged(int regionNo, QRect geometry);
    void highlightSelectedRegion(int regionNo);
    /// The features that a region takes from its group's master; an empty list withdraws them.
    void constraintsActivated(int regionNo, QStringList constrainedFeatures);
    /// The area between the region's neighbours, sensor pixels.
    void regionRangeChanged(int regionNo, QRect rangeGeometry);
    /// The colour shown, after every test for conflicts.
    void regionColorChanged(int regionNo, QColor color);
    void regionActivated(int regionNo, bool active);

public slots:
    void removeRectangle(int index);
    void updateRegionRangeRect();
    /// Shows @p image on a sensor of @p sensorSize, or its part @p cropRect when not empty (both
    /// sensor pixels), and without an image the placeholder.
    void setBackgroundImage(std::shared_ptr<QPixmap> image, QSize sensorSize, QRect cropRect);
    void onRegionColorChanged(int regionNo, QColor newColor);
    void onRegionGeometryChanged(int regionNo, QRect geometry);
    /// Makes or removes the region's band.
    void onRegionActivated(int regionNo, bool active);

protected:
    bool grabs(const QPoint& point) const override
    {
        return m_bands.lineAt(point) || m_bands.bandAt(point);
    }
    void press(const QPoint& point) override;
    void drag(const QPoint& point) override;
    void release(const QPoint& point) override;
    void drop() override;
    void hover(const QPoint& point) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showRectangle(int regionNo);
    void rescale();
    void arrange();
    void arrangeSilently();

    void announce(int regionNo);
    void announceRange(int regionNo);

    void onBandPressed(int regionNo);
    void onBandGeometryChanged(int regionNo);
    void onBandColorChanged(int regionNo, const QColor& color);
    void report(const QVector<RegionChange>& changes);

    RegionStore m_regions;
    RegionDrag m_drag;
    RegionBands m_bands;
    bool m_arrangePending = false;
    QTimer m_announceSoon;
};

#pragma once

#include "host/TabExtensionInterface.h"
#include "multiregion/label/ConstraintLineSet.h"
#include "multiregion/label/KnownRegions.h"
#include "multiregion/label/RegionAnnouncements.h"
#include "sensor/KeptPicture.h"
#include "sensor/SensorBackground.h"

#include <QLabel>
#include <QMap>
#include <QPointer>
#include <QStringList>

class LineRubberBand;
class RectangleRubberBand;
struct RegionChange;

/// The sensor area with a band for each active region, which the user selects, moves and resizes
/// with the mouse, and with the lines that regions of one row or column share.
///
/// Region rectangles come in and go out in sensor pixels, points are label pixels. The label keeps
/// the rectangles and places the bands from them. A drag moves bands only and reports at its end;
/// what is told meanwhile waits for it.
class MultiRubberBandLabel : public QLabel
{
    Q_OBJECT

public:
    MultiRubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color,
                         const QString& arrangementMode, QWidget* parent);

    void setSensorSize(const QSize& size);
    void setArrangementMode(const QString& mode);
    /// What the camera allows for a region; at first it may have any size within the sensor.
    void setRegionLimits(int regionNo, const RegionSizeLimits& limits);
    /// Highlights it; within regionSelected(), which follows the highlighting, nothing more
    /// happens.
    void selectRegion(int regionNo);

    /// A region's own colour, and the one that its band shows: red in a conflict.
    QColor regionColor(int regionNo) const { return m_regions.color(regionNo); }
    QColor shownColor(int regionNo) const;
    QRect regionRectangle(int regionNo) const { return m_regions.rectangle(regionNo); }
    bool isRegionShown(int regionNo) const { return m_bands.contains(regionNo); }
    bool isDragging() const { return m_dragState != NoDrag; }

    /// The shown region under a point, -1 for none.
    int regionUnder(const QPoint& point) const;
    /// Another shown region whose band overlaps @p band, -1 for none.
    int intersectingRegion(int regionNo, const QRect& band) const;
    /// Whether the regions that share edges with this one could follow it to @p band without coming
    /// to overlap another one.
    bool canBeFollowed(int regionNo, const QRect& band) const;
    /// The shown regions that share their edges along @p axis with this one, the master first;
    /// empty for a region that shares none.
    QVector<int> sharingRegions(int regionNo, Qt::Orientation axis) const;
    /// Size of the shown image.
    QSize imageSize() const { return m_mapping.shown; }

    /// Announces the shown colours again, and what else changed while the signals were blocked.
    /// Regions told of meanwhile are arranged now, all at once; without this call, with the next
    /// turn of the event loop.
    void announceRegions();

    /// Lets a new line take part in drags; for the set of lines.
    void connectLine(LineRubberBand* line);

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
    /// A drag was dropped without a report: instead of rubberChangeFinished().
    void rubberChangeDropped();

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
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    enum DragState {
        NoDrag = -1,
        LineDrag = 0,
        BandDrag = 1,
    };

    void fitBackground();
    void showBackground(const QPixmap& pixmap);
    void showRectangle(int regionNo);
    void arrange();
    void arrangeUnlessBlocked();
    void arrangeIfPending();
    void placeBand(int regionNo);
    void restack();
    void testConflicts();
    void announceConstraints();

    bool startDrag(const QPoint& point);
    void previewLine();
    void dropDrag();
    void applyWaiting();
    void carryDragOver(const QRect& region, const SensorMapping& before);
    QPoint clampedToImage(const QPoint& point) const;
    void updateCursor(const QPoint& point);
    void onBandPressed(int regionNo);
    void onBandGeometryChanged(int regionNo, const QRect& band);
    void onBandColorChanged(int regionNo, const QColor& color);
    void report(const QVector<RegionChange>& changes);

    DragState m_dragState = NoDrag;
    Qt::MouseButton m_dragButton = Qt::NoButton; ///< the others do nothing during its drag
    int m_draggedRegion = -1;
    QPointer<LineRubberBand> m_draggedLine;
    bool m_arrangePending = false;
    int m_selectedRegion = -1;
    int m_pressedRegion = -1;   ///< while regionSelected() tells it
    QMap<int, QRect> m_waiting; ///< rectangles told during a drag

    const QColor m_color;
    ArrangementMode m_mode;
    SensorMapping m_mapping;
    SensorBackground m_placeholder;
    KeptPicture m_picture;       ///< null for the placeholder
    bool m_pictureWaits = false; ///< until the label is visible: it is scaled then
    KnownRegions m_regions;
    QVector<ConstraintGroup> m_groups;
    ConstraintLineSet m_lines;
    QMap<int, RectangleRubberBand*> m_bands; ///< of the shown regions
    RegionAnnouncements m_announcements;
};

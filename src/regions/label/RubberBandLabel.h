#pragma once

#include "regions/label/EdgeDrag.h"
#include "sensor/SensorBackground.h"

#include <QLabel>

#include <memory>
#include <optional>

class QTimer;
class LabelBand;

/// The sensor area with one region on it, which the user moves and resizes with the mouse.
///
/// The label keeps the region in sensor pixels; regions come in and go out in the order top, left,
/// width, height. A drag only moves the band: the region changes at its end. Regions set during a
/// drag wait for it; its result replaces them. A label that is resized during a drag keeps the band
/// on the region that it stands for.
class RubberBandLabel : public QLabel
{
    Q_OBJECT

public:
    RubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color, QWidget* parent);

    /// Stores the region and places the band. A negative left, width or height becomes 0. A
    /// negative top is stored and placed as 0: the region then counts as missing when the label is
    /// shown, and the band fills the label's width, as it does before the first call.
    void setRegion(int top, int left, int width, int height);
    void setSensorSize(int width, int height);

    /// Shows @p image on a sensor of size @p sensorSize, or its part @p crop when not empty (both
    /// sensor pixels), and without an image the placeholder. Takes back one override cursor, which
    /// whoever announced the image has set.
    void showBackground(std::shared_ptr<QPixmap> image, QSize sensorSize, QRect crop);

    /// Between a press that took hold of the band and the release.
    bool isDragging() const { return m_drag.flags.any(); }

    /// The region at rest; all of it is negative until the first setRegion().
    SensorRegion region() const { return m_region; }
    QSize sensorSize() const { return m_sensor; }

    QSize sizeHint() const override;
    int heightForWidth(int width) const override;

signals:
    /// A drag has ended; the final region.
    void SendGeometry(int top, int left, int width, int height);
    /// The provisional region during a drag.
    void UpdateGeometry(int top, int left, int width, int height);
    void GeometryChangeStarted();
    /// Any press.
    void clicked();
    /// A drag was dropped without a result: the label was disabled, hidden or lost the mouse.
    void GeometryChangeAborted();

public slots:
    /// Places the band on the stored region, or on the label's width before the first setRegion().
    void UpdateGeometryAfterResize();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    LabelGeometry labelGeometry() const;
    /// The first setRegion() raises the width.
    bool hasRegion() const { return m_region.width >= 0; }
    void showPixmap(const QPixmap& pixmap);
    void paintPixmap(QPainter& painter, const QRegion& region) const;
    void placeBand();
    void resizeBand(const QSize& formerSize);
    void hover(const QPoint& pointer);
    void abortDrag();

    QColor m_color;
    QSize m_sensor;
    SensorBackground m_background;
    QPixmap m_shown;                             ///< the pixmap on the label
    bool m_pictureWaits = false;                 ///< until the label is visible: it is scaled then
    SensorRegion m_region{-1, -1, -1, -1};       ///< a negative width: not set yet
    std::optional<SensorRegion> m_waitingRegion; ///< set during a drag
    EdgeDrag m_drag;
    SensorRegion m_heldRegion; ///< what the band stands for during a drag
    bool m_placementWaits = false;
    QTimer* m_settleTimer;
    LabelBand* m_band;
};

#pragma once

#include "regions/label/EdgeDrag.h"
#include "sensor/SensorLabel.h"

#include <optional>

class QTimer;
class LabelBand;

/// The sensor area with one region on it, which the user moves and resizes with the mouse.
///
/// The label keeps the region in sensor pixels; regions come in and go out in the order top, left,
/// width, height. A drag only moves the band: the region changes at its end. Regions set during a
/// drag wait for it; its result replaces them. A label that is resized during a drag keeps the band
/// on the region that it stands for.
class RubberBandLabel : public SensorLabel
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

    /// The region at rest; an empty one until the first setRegion().
    SensorRegion region() const { return m_region.value_or(SensorRegion()); }

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

public slots:
    /// Places the band on the stored region, or on the label's width before the first setRegion().
    void UpdateGeometryAfterResize();

protected:
    bool grabs(const QPoint& point) const override;
    void press(const QPoint& point) override;
    void drag(const QPoint& point) override;
    void release(const QPoint& point) override;
    void drop() override;
    void hover(const QPoint& point) override;

    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    LabelGeometry labelGeometry() const;
    void paintPixmap(QPainter& painter, const QRegion& region) const;
    void placeBand();
    void resizeBand(const LabelGeometry& former);

    QColor m_color;
    std::optional<SensorRegion> m_region;
    std::optional<SensorRegion> m_waitingRegion; ///< set during a drag
    std::optional<EdgeDrag> m_drag;
    SensorRegion m_heldRegion;                       ///< what the band stands for during a drag
    Qt::CursorShape m_shownCursor = Qt::ArrowCursor; ///< tells the next press corners from edges
    QTimer* m_settleTimer;
    LabelBand* m_band;
};

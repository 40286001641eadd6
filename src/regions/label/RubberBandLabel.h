#pragma once

#include "regions/label/EdgeDrag.h"
#include "sensor/SensorLabel.h"

#include <QTimer>

#include <optional>

class LabelBand;

/// The sensor area with one region on it, which the user moves and resizes with the mouse. Signals
/// and setRegion() pass regions as top, left, width, height, in sensor pixels. A drag only moves
/// the band; what is set meanwhile shows if it has no result.
class RubberBandLabel : public SensorLabel
{
    Q_OBJECT

public:
    RubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color, QWidget* parent);

    /// With a negative top the region counts as missing when the label is shown: the band fills the
    /// label's width, as it does before the first call.
    void setRegion(int top, int left, int width, int height);
    void setSensorSize(int width, int height) { setSensor({width, height}); }

    /// Without an image the placeholder. Takes back one override cursor, of whoever announced it.
    /// @param crop the part to show of the sensor area; all when empty
    void showBackground(std::shared_ptr<QPixmap> image, QSize sensorSize, QRect crop);

    /// An empty one until the first setRegion().
    QRect region() const { return m_region.value_or(QRect()); }

    QSize sizeHint() const override { return {width(), heightForWidth(width())}; }
    int heightForWidth(int width) const override { return ::heightForWidth(width, sensorSize()); }

signals:
    void SendGeometry(int top, int left, int width, int height);
    void UpdateGeometry(int top, int left, int width, int height);
    void GeometryChangeStarted();
    void clicked();

public slots:
    /// Places the band on the stored region, unless it is being dragged.
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
    LabelGeometry labelGeometry() const { return {size(), sensorSize(), shownSize()}; }
    void describeRegion();

    std::optional<QRect> m_region;
    std::optional<EdgeDrag> m_drag;
    QRect m_heldRegion; ///< what the band stands for during a drag
    QTimer m_settleTimer;
    LabelBand* const m_band;
};

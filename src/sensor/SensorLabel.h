#pragma once

#include "sensor/SensorBackground.h"

#include <QLabel>

/// A region and its sensor pixels for those who do not see them.
QString spokenRegion(const QString& name, const QRect& region);
/// Describes a widget to them, and tells when that has changed.
void describe(QWidget* widget, const QString& text);

/// The sensor area, a tinted placeholder or a picture in the label's top left corner, scaled to
/// fit, with bands on it that are dragged with the mouse.
///
/// Pages may be deleted in a receiver of any signal. After one only what the receiver could not
/// delete is used, and signals that tell of what Qt does to the label wait for the event loop.
class SensorLabel : public QLabel
{
    Q_OBJECT

public:
    SensorLabel(const QSize& sensor, const QColor& color, QWidget* parent);

    /// Between a press that took hold of something and the release.
    bool isDragging() const { return m_button != Qt::NoButton; }

    QSize sensorSize() const { return m_sensor; }
    QSize shownSize() const { return m_shown; }

signals:
    /// A drag is about to begin: what is being edited is to be written now.
    void aboutToDrag();
    /// A drag has ended without a result: the label was disabled or hidden, or lost the mouse.
    void dragDropped();

protected:
    QColor color() const { return m_color; }
    /// For Windows 7 and its predecessors, which show no translucent placeholder.
    void setOpaqueColor(const QColor& color) { m_opaqueColor = color; }
    /// Shows the placeholder. Without a sensor there is nothing to drag.
    void setSensor(const QSize& sensor);
    /// Without an image the placeholder comes back, as large as the picture was.
    /// @param keptSize at which the picture is kept; when resized it keeps this aspect ratio
    /// @param bounds into which it is fitted
    void setPicture(const SensorPicture& picture, const QSize& keptSize, const QSize& bounds);
    /// The picture shows as it is: a disabled label paints it paler, margins are no picture.
    bool isPlain() const { return isEnabled() && contentsRect() == rect(); }
    /// Next to @p point on the picture, its right and bottom border included.
    QPoint clampedToPicture(const QPoint& point) const;
    void dropDrag();

    /// Whether a press at the point takes hold of something.
    virtual bool grabs(const QPoint& point) const = 0;
    virtual void press(const QPoint& point) = 0;
    /// @param point clamped to the picture
    virtual void drag(const QPoint& point) = 0;
    /// @param point where it really is
    virtual void release(const QPoint& point) = 0;
    /// The drag has no result: all goes back to where it was, without a signal.
    virtual void drop() = 0;
    virtual void hover(const QPoint& point) = 0;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QColor placeholderColor() const;
    void endDrag();
    void fitBackground(const QSize& bounds);
    void showBackground();
    void coverWithPicture();

    QColor m_color;
    QColor m_opaqueColor = Qt::darkGray;
    QSize m_sensor;
    SensorBackground m_background;
    QSize m_shown;
    bool m_pictureWaits = false;             ///< to be scaled, until the label is visible
    Qt::MouseButton m_button = Qt::NoButton; ///< of the drag; the others do nothing meanwhile
};

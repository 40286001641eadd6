#include "regions/label/RubberBandLabel.h"

#include "regions/label/LabelBand.h"
#include "sensor/PixelRect.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QResizeEvent>

namespace {

constexpr int settleTimeMs = 200;
constexpr int bandAlpha = 80;

// What QLabel paints, rectangle by rectangle: one clip of them all takes several times as long.
void paintPixmap(QPainter& painter, const QPixmap& pixmap, const QRegion& region)
{
    for (const QRect& part : region) {
        painter.setClipRect(part);
        painter.drawPixmap(0, 0, pixmap);
    }
    painter.setClipping(false);
}

} // namespace

RubberBandLabel::RubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color,
                                 QWidget* parent)
    : SensorLabel({sensorWidth, sensorHeight}, color, parent)
    , m_band(new LabelBand(this))
{
    QColor highlight = color;
    highlight.setAlpha(bandAlpha);
    QPalette palette;
    palette.setBrush(QPalette::Highlight, highlight);
    m_band->setPalette(palette); // before a style sheet, which gives back what it has found
    setOpaqueColor(Qt::black);   // from now on: the first placeholder is grey
    m_settleTimer.setSingleShot(true);
    m_settleTimer.setInterval(settleTimeMs);
    connect(&m_settleTimer, &QTimer::timeout, this, &RubberBandLabel::UpdateGeometryAfterResize);
}

void RubberBandLabel::setRegion(int top, int left, int width, int height)
{
    m_region = truncatedRect(left, top, width, height);
    UpdateGeometryAfterResize();
}

void RubberBandLabel::showBackground(std::shared_ptr<QPixmap> image, QSize sensorSize, QRect crop)
{
    setPicture({image, sensorSize, crop}, shownSize(), shownSize());
    QApplication::restoreOverrideCursor();
}

void RubberBandLabel::UpdateGeometryAfterResize()
{
    if (isDragging())
        return;
    describeRegion();
    const LabelGeometry current = labelGeometry();
    if (canPlaceBand(current))
        m_band->setGeometry(m_region ? bandForRegion(*m_region, current)
                                     : bandWithoutRegion(current));
}

bool RubberBandLabel::grabs(const QPoint& point) const
{
    const LabelGeometry current = labelGeometry();
    return canPlaceBand(current)
        && grabForPress(bandForMouse(m_band->geometry(), current), point).any();
}

void RubberBandLabel::press(const QPoint& point)
{
    m_heldRegion = m_region.value_or(QRect(QPoint(0, 0), sensorSize()));
    const LabelGeometry current = labelGeometry();
    const QRect band = m_band->geometry();
    const EdgeGrab held = grabForPress(bandForMouse(band, current), point);
    const Qt::CursorShape shown = isFlat(current) ? Qt::SizeHorCursor : cursor().shape();
    m_drag = {held, followingEdges(held, shown), point - band.topLeft(), band, m_heldRegion};
    emit GeometryChangeStarted();
}

void RubberBandLabel::drag(const QPoint& point)
{
    const LabelGeometry current = labelGeometry();
    const QRect band = draggedBand(*m_drag, point, current);
    m_band->setGeometry(band);
    m_heldRegion = releasedRegion(*m_drag, band, {0, 0}, current);
    const QRect region = provisionalRegion(*m_drag, band, current);
    emit UpdateGeometry(region.y(), region.x(), region.width(), region.height());
}

void RubberBandLabel::release(const QPoint& point)
{
    const QRect region = releasedRegion(*m_drag, m_band->geometry(), point, labelGeometry());
    m_drag.reset();
    m_region = region;
    describeRegion();
    emit SendGeometry(region.y(), region.x(), region.width(), region.height());
}

void RubberBandLabel::drop()
{
    m_drag.reset();
    UpdateGeometryAfterResize();
}

void RubberBandLabel::hover(const QPoint& point)
{
    setCursor(cursorForHover(bandForMouse(m_band->geometry(), labelGeometry()),
                             clampedToPicture(point), point));
    // The pages behind may delete the label meanwhile; nothing may follow.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void RubberBandLabel::mousePressEvent(QMouseEvent* event)
{
    const QPointer<RubberBandLabel> guard(this);
    SensorLabel::mousePressEvent(event);
    if (guard)
        emit clicked();
}

void RubberBandLabel::resizeEvent(QResizeEvent* event)
{
    const double formerScale = labelPerSensor({event->oldSize(), sensorSize(), {}});
    SensorLabel::resizeEvent(event);
    const LabelGeometry current = labelGeometry();
    if (!canPlaceBand(current)) {
        dropDrag();
    } else if (m_drag) {
        // The release reads the region off the band, for which an estimate would not do.
        m_drag->grabOffset *= labelPerSensor(current) / formerScale;
        m_drag->band = atLeastOnePixel(bandForRegion(m_heldRegion, current));
        m_band->setGeometry(m_drag->band);
    } else if (!event->oldSize().isEmpty()) { // the first resize has no size before it
        m_band->setGeometry(bandForResize(m_band->geometry(), event->oldSize(), current));
    }
    m_settleTimer.start();
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

void RubberBandLabel::showEvent(QShowEvent* event)
{
    SensorLabel::showEvent(event);
    if (!m_region || m_region->y() < 0)
        m_band->setGeometry(bandWithoutRegion(labelGeometry()));
    else
        UpdateGeometryAfterResize();
    m_band->show();
}

void RubberBandLabel::describeRegion()
{
    const QString text = m_region ? spokenRegion(accessibleName(), *m_region) : QString();
    describe(this, text);
    describe(m_band, text);
}

void RubberBandLabel::paintEvent(QPaintEvent* event)
{
    if (!isPlain())
        QLabel::paintEvent(event);
    QPainter painter(this);
    if (isPlain())
        paintPixmap(painter, pixmap(Qt::ReturnByValue), event->region());
    m_band->paint(painter, event->region());
}

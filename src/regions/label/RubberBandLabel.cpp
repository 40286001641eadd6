#include "regions/label/RubberBandLabel.h"

#include "regions/label/LabelBand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QResizeEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr int settleTimeMs = 200;
constexpr int bandAlpha = 80;

} // namespace

RubberBandLabel::RubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color,
                                 QWidget* parent)
    : SensorLabel({sensorWidth, sensorHeight}, color, parent)
    , m_color(color)
    , m_settleTimer(new QTimer(this))
    , m_band(new LabelBand(this))
{
    setOpaqueColor(Qt::black); // from now on: the first placeholder is grey
    m_settleTimer->setSingleShot(true);
    m_settleTimer->setInterval(settleTimeMs);
    connect(m_settleTimer, &QTimer::timeout, this, &RubberBandLabel::UpdateGeometryAfterResize);
}

void RubberBandLabel::setRegion(int top, int left, int width, int height)
{
    const SensorRegion region{top, std::max(0, left), std::max(0, width), std::max(0, height)};
    if (isDragging()) {
        m_waitingRegion = region;
    } else {
        m_region = region;
        placeBand();
    }
}

void RubberBandLabel::setSensorSize(int width, int height)
{
    setSensor({width, height});
}

void RubberBandLabel::showBackground(std::shared_ptr<QPixmap> image, QSize sensorSize, QRect crop)
{
    setPicture({image, sensorSize, crop}, shownSize(), shownSize());
    QApplication::restoreOverrideCursor();
}

QSize RubberBandLabel::sizeHint() const
{
    return {width(), heightForWidth(width())};
}

int RubberBandLabel::heightForWidth(int width) const
{
    return ::heightForWidth(width, sensorSize());
}

void RubberBandLabel::UpdateGeometryAfterResize()
{
    if (isDragging())
        m_settleTimer->start();
    else
        placeBand();
}

bool RubberBandLabel::grabs(const QPoint& point) const
{
    const LabelGeometry current = labelGeometry();
    return labelPerSensor(current) >= smallestScale
        && flagsForPress(bandForMouse(m_band->geometry(), current), point).any();
}

void RubberBandLabel::press(const QPoint& point)
{
    const SensorRegion region = m_region.value_or(SensorRegion::whole(sensorSize()));
    m_drag = dragFromPress(point, m_band->geometry(), m_shownCursor, region, labelGeometry());
    m_heldRegion = m_drag->region;
    emit GeometryChangeStarted();
}

void RubberBandLabel::drag(const QPoint& point)
{
    const EdgeDragStep step = dragBand(*m_drag, m_band->geometry(), point, labelGeometry());
    m_band->setGeometry(step.band);
    m_heldRegion = regionForRelease(*m_drag, step.band, {0, 0}, labelGeometry());
    emit UpdateGeometry(step.region.top, step.region.left, step.region.width, step.region.height);
}

void RubberBandLabel::release(const QPoint& point)
{
    const SensorRegion region
        = regionForRelease(*m_drag, m_band->geometry(), point, labelGeometry());
    m_drag.reset();
    m_waitingRegion.reset();
    m_region = region;
    emit SendGeometry(region.top, region.left, region.width, region.height);
}

void RubberBandLabel::drop()
{
    m_drag.reset();
    if (const auto waiting = std::exchange(m_waitingRegion, std::nullopt))
        m_region = waiting;
    placeBand();
}

void RubberBandLabel::hover(const QPoint& point)
{
    m_shownCursor = cursorForHover(bandForMouse(m_band->geometry(), labelGeometry()),
                                   clampedToPicture(point), point);
    setCursor(m_shownCursor);
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
    const LabelGeometry former{event->oldSize(), sensorSize(), shownSize()};
    SensorLabel::resizeEvent(event);
    if (labelPerSensor(labelGeometry()) < smallestScale)
        dropDrag();
    else if (!former.label.isEmpty()) // the first resize has no size before it
        resizeBand(former);
    m_settleTimer->start();
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
}

void RubberBandLabel::resizeBand(const LabelGeometry& former)
{
    const LabelGeometry current = labelGeometry();
    if (!m_drag) {
        m_band->setGeometry(bandForResize(m_band->geometry(), former.label, current));
        return;
    }
    // The release reads the region off the band, for which an estimate would not do.
    m_drag->grabOffset *= labelPerSensor(current) / labelPerSensor(former);
    m_band->setGeometry(atLeastOnePixel(bandForRegion(m_heldRegion, current)));
}

void RubberBandLabel::showEvent(QShowEvent* event)
{
    SensorLabel::showEvent(event);
    if (!m_region || m_region->top < 0)
        m_band->setGeometry(bandWithoutRegion(labelGeometry()));
    else
        UpdateGeometryAfterResize();

    QColor highlight = m_color;
    highlight.setAlpha(bandAlpha);
    QPalette palette;
    palette.setBrush(QPalette::Highlight, highlight);
    m_band->setPalette(palette);
    m_band->show();
}

void RubberBandLabel::paintEvent(QPaintEvent* event)
{
    if (!isPlain())
        QLabel::paintEvent(event);
    QPainter painter(this);
    if (isPlain())
        paintPixmap(painter, event->region());
    m_band->paint(painter, event->region());
}

// What the base paints, rectangle by rectangle: one clip of them all takes several times as long.
void RubberBandLabel::paintPixmap(QPainter& painter, const QRegion& region) const
{
    const QPixmap shown = pixmap(Qt::ReturnByValue);
    for (const QRect& part : region& shown.rect()) {
        painter.setClipRect(part);
        painter.drawPixmap(part, shown, part);
    }
    painter.setClipping(false);
}

LabelGeometry RubberBandLabel::labelGeometry() const
{
    return {size(), sensorSize(), shownSize()};
}

void RubberBandLabel::placeBand()
{
    const LabelGeometry current = labelGeometry();
    if (labelPerSensor(current) < smallestScale)
        return;
    m_band->setGeometry(m_region ? bandForRegion(*m_region, current) : bandWithoutRegion(current));
}

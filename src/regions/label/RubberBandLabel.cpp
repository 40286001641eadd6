#include "regions/label/RubberBandLabel.h"

#include "regions/label/BandResize.h"
#include "regions/label/LabelBand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int minimumSide = 100; ///< label pixels
constexpr int settleTimeMs = 200;
constexpr int bandAlpha = 80;

/// @param opaqueColor for systems that do not show a translucent one
QColor placeholderColor(const QColor& regionColor, Qt::GlobalColor opaqueColor)
{
    return needsOpaquePlaceholder(QOperatingSystemVersion::current())
        ? QColor(opaqueColor)
        : placeholderTint(regionColor);
}

} // namespace

RubberBandLabel::RubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color,
                                 QWidget* parent)
    : QLabel(parent)
    , m_color(color)
    , m_sensor(sensorWidth, sensorHeight)
    , m_settleTimer(new QTimer(this))
    , m_band(new LabelBand(this))
{
    setMouseTracking(true);
    setMinimumSize(minimumSide, minimumSide);
    // The band's coordinates count from the top left corner in right-to-left layouts too.
    setAlignment(Qt::AlignLeft | Qt::AlignTop | Qt::AlignAbsolute);

    m_background.showPlaceholder(placeholderColor(m_color, Qt::darkGray), m_sensor);
    showPixmap(m_background.fitted(m_sensor.boundedTo(SensorBackground::largestLabel)));

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
    m_sensor = {width, height};
    m_background.showPlaceholder(placeholderColor(m_color, Qt::black), m_sensor);
    showPixmap(m_background.fitted(size()));
    if (m_sensor.isEmpty())
        abortDrag();
}

void RubberBandLabel::showBackground(std::shared_ptr<QPixmap> image, QSize sensorSize, QRect crop)
{
    if (image)
        m_background.showPicture({image, sensorSize, crop}, m_shown.size());
    else
        m_background.showPlaceholder(placeholderColor(m_color, Qt::black), m_background.size());
    if (image && !isVisible())
        m_pictureWaits = true;
    else
        showPixmap(m_background.fitted(m_shown.size()));
    QApplication::restoreOverrideCursor();
}

QSize RubberBandLabel::sizeHint() const
{
    return {width(), heightForWidth(width())};
}

int RubberBandLabel::heightForWidth(int width) const
{
    return ::heightForWidth(width, m_sensor);
}

void RubberBandLabel::UpdateGeometryAfterResize()
{
    m_placementWaits = isDragging();
    if (!m_placementWaits)
        placeBand();
}

bool RubberBandLabel::event(QEvent* event)
{
    const bool handled = QLabel::event(event);
    if (event->type() == QEvent::UngrabMouse || event->type() == QEvent::WindowDeactivate)
        abortDrag();
    if (isCoverChange(event))
        coverWithPicture(this, m_shown);
    return handled;
}

void RubberBandLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        abortDrag();
}

void RubberBandLabel::mousePressEvent(QMouseEvent* event)
{
    if (!isDragging() && !displayedSize(labelGeometry()).isEmpty()) {
        const QRect band = m_band->geometry();
        m_drag.flags = flagsForPress(band, event->pos());
        m_drag.cursor = cursor().shape();
        if (m_drag.flags.moving)
            m_drag.grabOffset = event->pos() - band.topLeft();
        m_drag.region = hasRegion() ? m_region : SensorRegion::whole(m_sensor);
        m_drag.region.top = std::max(0, m_drag.region.top);
        m_heldRegion = m_drag.region;
        if (isDragging())
            emit GeometryChangeStarted();
    }
    emit clicked();
}

void RubberBandLabel::mouseMoveEvent(QMouseEvent* event)
{
    // Only the window system knows the buttons: a drag without one has missed its release.
    if (event->spontaneous() && event->buttons() == Qt::NoButton)
        abortDrag();
    if (!isDragging()) {
        hover(event->pos());
        return;
    }
    const LabelGeometry current = labelGeometry();
    const QPoint pointer = clampedToPicture(event->pos(), current);
    const EdgeDragStep step = dragBand(m_drag, m_band->geometry(), pointer, current);
    m_band->setGeometry(step.band);
    m_heldRegion = heldRegion(m_drag, step.band, current);
    emit UpdateGeometry(step.region.top, step.region.left, step.region.width, step.region.height);
}

void RubberBandLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isDragging())
        return;
    const SensorRegion region
        = regionForRelease(m_drag, m_band->geometry(), event->pos(), labelGeometry());
    m_drag = {};
    m_region = region;
    m_waitingRegion.reset();
    if (m_placementWaits)
        UpdateGeometryAfterResize();
    emit SendGeometry(region.top, region.left, region.width, region.height);
}

void RubberBandLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    showPixmap(m_background.fitted(event->size()));
    resizeBand(event->oldSize());
    m_settleTimer->start();
    if (event->size().width() != event->oldSize().width())
        updateGeometry();
    if (displayedSize(labelGeometry()).isEmpty())
        abortDrag();
}

void RubberBandLabel::resizeBand(const QSize& formerSize)
{
    const LabelGeometry current = labelGeometry();
    const QSize displayed = displayedSize(current);
    // The first resize has no size before it.
    if (formerSize.isEmpty() || displayed.isEmpty())
        return;
    if (!isDragging()) {
        m_band->setGeometry(bandForResize(m_band->geometry(), size(), formerSize, displayed));
        return;
    }
    // The release reads the region off the band, for which an estimate would not do.
    m_drag.grabOffset
        *= labelPerSensor(current) / labelPerSensor({formerSize, m_sensor, m_shown.size()});
    m_band->setGeometry(atLeastOnePixel(bandForRegion(m_heldRegion, current)));
}

void RubberBandLabel::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    if (m_pictureWaits)
        showPixmap(m_background.fitted(m_shown.size()));
    if (m_region.top < 0)
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

void RubberBandLabel::hideEvent(QHideEvent* event)
{
    QLabel::hideEvent(event);
    abortDrag();
}

void RubberBandLabel::paintEvent(QPaintEvent* event)
{
    const bool isPlain = isEnabled() && contentsRect() == rect();
    if (!isPlain)
        QLabel::paintEvent(event);
    QPainter painter(this);
    if (isPlain)
        paintPixmap(painter, event->region());
    m_band->paint(painter, event->region());
}

// What the base paints, rectangle by rectangle: one clip of them all takes several times as long.
void RubberBandLabel::paintPixmap(QPainter& painter, const QRegion& region) const
{
    for (const QRect& part : region& m_shown.rect()) {
        painter.setClipRect(part);
        painter.drawPixmap(part, m_shown, part);
    }
    painter.setClipping(false);
}

LabelGeometry RubberBandLabel::labelGeometry() const
{
    return {size(), m_sensor, m_shown.size()};
}

void RubberBandLabel::showPixmap(const QPixmap& pixmap)
{
    m_pictureWaits = false;
    m_shown = pixmap;
    setPixmap(pixmap);
    coverWithPicture(this, pixmap);
}

void RubberBandLabel::placeBand()
{
    const LabelGeometry current = labelGeometry();
    if (labelPerSensor(current) < smallestScale)
        return;
    m_band->setGeometry(hasRegion() ? bandForRegion(m_region, current)
                                    : bandWithoutRegion(current));
}

void RubberBandLabel::hover(const QPoint& pointer)
{
    setCursor(
        cursorForHover(m_band->geometry(), clampedToPicture(pointer, labelGeometry()), pointer));
    // The pages behind may delete the label meanwhile; nothing may follow.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void RubberBandLabel::abortDrag()
{
    if (!isDragging())
        return;
    m_drag = {};
    if (m_waitingRegion)
        m_region = *m_waitingRegion;
    m_waitingRegion.reset();
    UpdateGeometryAfterResize();
    emit GeometryChangeAborted();
}

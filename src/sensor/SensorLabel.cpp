#include "sensor/SensorLabel.h"

#include "sensor/PixelRect.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int minimumSide = 100; ///< label pixels
constexpr QSize largestSensor(largestCoordinate, largestCoordinate);

/// Whether an event of the application ends a drag on @p label: a menu or a dialog takes the mouse
/// away without a word to whom it takes it from. A window that takes the focus does not.
bool takesMouse(const SensorLabel& label, QObject* object, const QEvent& event)
{
    const auto* widget = qobject_cast<const QWidget*>(object);
    switch (event.type()) {
    case QEvent::Show:
        return widget && widget->windowType() == Qt::Popup;
    case QEvent::WindowBlocked:
        return object == label.window()->windowHandle();
    case QEvent::MouseButtonRelease:
        return widget && widget != &label && QGuiApplication::mouseButtons() == Qt::NoButton;
    default:
        return false;
    }
}

} // namespace

QString spokenRegion(const QString& name, const QRect& region)
{
    return name
        + QString::asprintf(" (%d, %d) %d x %d", region.x(), region.y(), region.width(),
                            region.height());
}

void describe(QWidget* widget, const QString& text)
{
    if (widget->accessibleDescription() != text)
        widget->setAccessibleDescription(text);
}

SensorLabel::SensorLabel(const QSize& sensor, const QColor& color, QWidget* parent)
    : QLabel(parent)
    , m_color(color)
    , m_sensor(sensor.boundedTo(largestSensor))
    , m_background(placeholderColor(), m_sensor)
{
    setMouseTracking(true);
    setMinimumSize(minimumSide, minimumSide);
    // Bands count from the left in right-to-left layouts too.
    setLayoutDirection(Qt::LeftToRight);
    setAlignment(Qt::AlignTop);
    fitBackground(m_sensor.boundedTo(SensorBackground::largestLabel));
}

void SensorLabel::setSensor(const QSize& sensor)
{
    m_sensor = sensor.boundedTo(largestSensor);
    m_background = {placeholderColor(), m_sensor};
    fitBackground(size());
    if (m_sensor.isEmpty())
        dropDrag();
}

void SensorLabel::setPicture(const SensorPicture& picture, const QSize& keptSize,
                             const QSize& bounds)
{
    if (picture.image)
        m_background = {picture, keptSize};
    else
        m_background = {placeholderColor(), m_background.size()};
    fitBackground(bounds);
}

QPoint SensorLabel::clampedToPicture(const QPoint& point) const
{
    return {std::clamp(point.x(), 0, m_shown.width()), std::clamp(point.y(), 0, m_shown.height())};
}

bool SensorLabel::event(QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool isDisabled = type == QEvent::EnabledChange && !isEnabled();
    if (isDisabled || type == QEvent::Hide || type == QEvent::UngrabMouse)
        dropDrag();
    if (type == QEvent::EnabledChange || type == QEvent::ContentsRectChange)
        coverWithPicture();
    return QLabel::event(event);
}

bool SensorLabel::eventFilter(QObject* object, QEvent* event)
{
    if (takesMouse(*this, object, *event))
        dropDrag();
    return QLabel::eventFilter(object, event);
}

void SensorLabel::mousePressEvent(QMouseEvent* event)
{
    if (isDragging() || !grabs(event->pos()))
        return;
    const bool wasVisible = isVisible();
    const Qt::MouseButtons held = QGuiApplication::mouseButtons();
    const QPointer<SensorLabel> guard(this);
    emit aboutToDrag();
    // A receiver may have asked in a dialog, which has had the release.
    if (!guard || !isEnabled() || isVisible() != wasVisible
        || held != QGuiApplication::mouseButtons() || isDragging() || !grabs(event->pos()))
        return;
    m_button = event->button();
    qApp->installEventFilter(this);
    press(event->pos());
}

void SensorLabel::mouseMoveEvent(QMouseEvent* event)
{
    // Only the window system knows the buttons: a drag without its own has missed its release.
    if (event->spontaneous() && !event->buttons().testFlag(m_button))
        dropDrag();
    if (isDragging())
        drag(clampedToPicture(event->pos()));
    else
        hover(event->pos());
}

void SensorLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isDragging() || event->button() != m_button)
        return;
    endDrag();
    release(event->pos());
}

void SensorLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fitBackground(event->size());
}

void SensorLabel::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    if (!m_pictureWaits)
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    showBackground();
    QGuiApplication::restoreOverrideCursor();
}

/// What Qt or the page does to the label goes on behind this, so that the signal waits.
void SensorLabel::dropDrag()
{
    if (!isDragging())
        return;
    endDrag();
    drop();
    QMetaObject::invokeMethod(this, &SensorLabel::dragDropped, Qt::QueuedConnection);
}

void SensorLabel::endDrag()
{
    m_button = Qt::NoButton;
    qApp->removeEventFilter(this);
}

QColor SensorLabel::placeholderColor() const
{
    return needsOpaquePlaceholder(QOperatingSystemVersion::current()) ? m_opaqueColor
                                                                      : placeholderTint(m_color);
}

void SensorLabel::fitBackground(const QSize& bounds)
{
    m_shown = m_background.fittedSize(bounds);
    m_pictureWaits = m_background.isPicture() && !isVisible();
    if (!m_pictureWaits)
        showBackground();
}

void SensorLabel::showBackground()
{
    m_pictureWaits = false;
    QPixmap picture = m_background.scaled(m_shown * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(picture);
    coverWithPicture();
}

/// Spares Qt the painting of what lies beneath the label, as long as its picture hides all of it.
void SensorLabel::coverWithPicture()
{
    const QPixmap picture = pixmap(Qt::ReturnByValue);
    setAttribute(Qt::WA_OpaquePaintEvent,
                 isPlain() && picture.size() == size() * devicePixelRatioF()
                     && !picture.hasAlphaChannel());
}

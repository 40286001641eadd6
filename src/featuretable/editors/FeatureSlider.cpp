#include "featuretable/editors/FeatureSlider.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <qwt_scale_engine.h>

#include <algorithm>

namespace {

constexpr QSize handleDimensions(12, 18);
constexpr int grooveHeight = 4;
constexpr int smallestWidth = 52;
constexpr int pageDivisor = 10;
constexpr int grooveAlpha = 70;
constexpr int outlineAlpha = 150;

// The shades of a palette are too close to a dark background.
QColor fadedText(const QPalette& palette, int alpha)
{
    QColor color = palette.color(QPalette::Text);
    color.setAlpha(alpha);
    return color;
}

} // namespace

FeatureSlider::FeatureSlider(const SliderRange& range, QWidget* parent)
    : QwtSlider(Qt::Horizontal, parent)
    , m_range(range)
    , m_position(range.minimum)
{
    if (range.logarithmic)
        setScaleEngine(new QwtLogScaleEngine);
    setScalePosition(NoScale);
    setScale(range.minimum, snapped(range.maximum, range));
    const auto steps = static_cast<unsigned>(sliderSteps(range));
    setTotalSteps(steps);
    setPageSteps(std::max(1u, steps / pageDivisor));
    setHandleSize(handleDimensions);
    setBorderWidth(0);
    setMinimumWidth(smallestWidth);
    connect(this, &QwtSlider::sliderPressed, this, [this] { m_dragged = true; });
    connect(this, &QwtSlider::valueChanged, this, &FeatureSlider::onValueChanged);
}

void FeatureSlider::follow(double value)
{
    const QSignalBlocker blocker(this);
    setValue(value);
    m_position = value;
}

void FeatureSlider::mouseReleaseEvent(QMouseEvent* event)
{
    QwtSlider::mouseReleaseEvent(event);
    m_dragged = false;
    if (event->button() == Qt::LeftButton)
        emit released();
}

// Drawn flat from the palette: the bevels of the base stand out in a cell, and more so on dark.
void FeatureSlider::drawSlider(QPainter* painter, const QRect& rect) const
{
    constexpr double grooveRadius = grooveHeight / 2.0;
    constexpr double handleRadius = 3.0;
    constexpr double half = 0.5; // pixels, to the middle of the outline
    const QRectF handle = handleRect();
    const QRectF groove(rect.x() + handle.width() / 2,
                        rect.y() + (rect.height() - grooveHeight) / 2.0,
                        rect.width() - handle.width(), grooveHeight);
    QRectF covered = groove;
    covered.setRight(handle.center().x());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(fadedText(palette(), grooveAlpha));
    painter->drawRoundedRect(groove, grooveRadius, grooveRadius);
    painter->setBrush(palette().brush(QPalette::Highlight));
    painter->drawRoundedRect(covered, grooveRadius, grooveRadius);
    painter->setPen(hasFocus() ? palette().color(QPalette::Highlight)
                               : fadedText(palette(), outlineAlpha));
    painter->setBrush(palette().brush(QPalette::Button));
    painter->drawRoundedRect(handle.adjusted(half, half, -half, -half), handleRadius, handleRadius);
}

void FeatureSlider::onValueChanged(double value)
{
    if (m_dragged)
        m_position = sliderValue(value, m_range);
    else
        follow(stepped(m_position, value, m_range));
    emit moved(m_position);
}

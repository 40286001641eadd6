#include "multiregion/label/LineRubberBand.h"

#include "sensor/SensorLabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

LineRubberBand::LineRubberBand(int orientation, int position, QWidget* parent, int length,
                               const QColor& color, SensorLabel* label)
    : QRubberBand(QRubberBand::Line, parent)
    , m_orientation(orientation)
{
    if (label)
        m_bounds.upper = isVertical() ? label->shownSize().width() : label->shownSize().height();
    place(position, length);
    setColor(color);
}

std::optional<int> LineRubberBand::distanceTo(const QPoint& point) const
{
    constexpr int zone = lineGrabZone;
    if (!geometry().adjusted(-zone, -zone, zone, zone).contains(point))
        return std::nullopt;
    return grabDistance(position(), isVertical() ? point.x() : point.y());
}

void LineRubberBand::place(int position, int length)
{
    const QSize size(length, constraintLineThickness);
    setFixedSize(isVertical() ? size.transposed() : size);
    moveTo(position);
}

void LineRubberBand::setColor(const QColor& color)
{
    QPalette colors = palette();
    colors.setBrush(QPalette::Highlight, QBrush(color, Qt::SolidPattern));
    setPalette(colors);
}

void LineRubberBand::moveToPoint(QPoint point)
{
    if (!m_dragging)
        return;
    const int wanted = isVertical() ? point.x() : point.y();
    moveTo(std::clamp(wanted, m_bounds.lower, m_bounds.upper));
    announce();
}

void LineRubberBand::changeEvent(QEvent* event)
{
    QRubberBand::changeEvent(event);
    m_picture = {};
}

/// A style smooths all of the line, whose picture stays the same while it is dragged.
void LineRubberBand::paintEvent(QPaintEvent*)
{
    const QSize pixels = size() * devicePixelRatioF();
    if (m_picture.size() != pixels) {
        m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(devicePixelRatioF());
        m_picture.fill(Qt::transparent);
        QStyleOptionRubberBand option;
        initStyleOption(&option);
        QPainter painter(&m_picture);
        style()->drawControl(QStyle::CE_RubberBand, &option, &painter, this);
    }
    QPainter(this).drawPixmap(0, 0, m_picture);
}

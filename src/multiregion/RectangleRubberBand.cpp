#include "RectangleRubberBand.h"

#include "LineRubberBand.h"
#include "MultiRubberBandLabel.h"

#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace {

constexpr int bandAlpha = 80;

const QFont& numberFont()
{
    static const QFont font(QStringLiteral("Helvetica"), 12);
    return font;
}

/// What the label shows in @p area, without its bands: rendering those would paint a band from
/// within its own painting.
QImage negativeOf(QWidget* label, const QRect& area)
{
    QImage image(area.size(), QImage::Format_RGB32);
    image.fill(label->palette().color(QPalette::Window));
    label->render(&image, QPoint(), area, QWidget::DrawWindowBackground);
    image.invertPixels();
    return image;
}

} // namespace

RectangleRubberBand::RectangleRubberBand(int regionNo, const QRect& geometry,
                                         const QSize& minimumSize, const QColor& color,
                                         MultiRubberBandLabel* label)
    : QRubberBand(QRubberBand::Rectangle, label)
    , m_regionNo(regionNo)
    , m_color(color)
    , m_label(label)
{
    m_limits.minimum = minimumSize;
    setGeometry(geometry);
    applyColor();
}

QColor RectangleRubberBand::shownColor() const
{
    return m_inConflict ? QColor(QStringLiteral("red")) : m_color;
}

void RectangleRubberBand::setOwnColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    applyColor();
    emit colorChanged(m_regionNo, shownColor());
}

void RectangleRubberBand::setSizeLimits(const BandSizeLimits& limits)
{
    m_limits = limits;
}

RegionBandGrab RectangleRubberBand::grabAt(const QPoint& point) const
{
    return regionBandGrabAt(geometry(), point);
}

void RectangleRubberBand::press(const QPoint& point)
{
    m_grab = grabAt(point);
    m_pressPoint = point;
    m_atPress = geometry();
    emit regionBandSelected(m_regionNo);
}

void RectangleRubberBand::rescaleDrag(const QPoint& pressPoint, const QRect& atPress)
{
    m_pressPoint = pressPoint;
    m_atPress = atPress;
}

void RectangleRubberBand::dropDrag()
{
    m_pressPoint = noPoint;
    m_grab = RegionBandGrab::Move;
}

void RectangleRubberBand::onResizeFinished(QPoint)
{
    // The press point follows the pointer: only the geometry tells whether a move led anywhere.
    const bool report = m_grab != RegionBandGrab::Move || (isPressed() && geometry() != m_atPress);
    dropDrag();
    if (report)
        emit geometryChanged(m_regionNo, geometry());
}

void RectangleRubberBand::resizeMoveToPoint(QPoint point)
{
    if (!m_label)
        return;
    if (m_grab != RegionBandGrab::Move) {
        showIfAllowed(resizedRegionBand(geometry(), m_grab, point, m_limits));
        return;
    }
    if (!isPressed() || point == m_pressPoint)
        return;
    MoveConstraints constraints;
    for (const MoveConstraints& line : qAsConst(m_lineConstraints))
        constraints = combined(constraints, line);
    const QPoint delta = point - std::exchange(m_pressPoint, point);
    showIfAllowed(movedRegionBand(geometry(), delta, m_label->imageSize(), constraints));
}

void RectangleRubberBand::onIntersectionFound(int conflictRegion)
{
    m_inConflict = isConflict(m_regionNo, conflictRegion);
    applyColor();
    emit colorChanged(m_regionNo, shownColor());
}

void RectangleRubberBand::highlightIfSelected(int selectedRegion)
{
    const bool selected = selectedRegion == m_regionNo;
    if (selected == m_selected)
        return;
    m_selected = selected;
    update();
}

void RectangleRubberBand::onNeighbourRegionActivated(int regionNo, bool activated)
{
    // Region 0 has none below it; neighbours that go can only solve a conflict.
    if (m_regionNo == 0 || regionNo >= m_regionNo || (!activated && !m_inConflict) || !m_label)
        return;
    const bool before = m_inConflict;
    onIntersectionFound(m_label->intersectingRegion(m_regionNo, geometry()));
    if (m_inConflict != before)
        emit geometryChanged(m_regionNo, geometry());
}

void RectangleRubberBand::onConstraintBandChanged(QRect lineBandGeometry)
{
    const auto* line = qobject_cast<LineRubberBand*>(sender());
    if (!line)
        return;
    if (lineBandGeometry.isNull()) {
        m_lineConstraints.remove(line);
        return;
    }
    const ConstraintGroup& group = line->group();
    m_lineConstraints[line]
        = constraintsFromLine({group.axis(), line->edge(), line->position(),
                               group.members.contains(m_regionNo), group.master() == m_regionNo},
                              geometry());
}

void RectangleRubberBand::paintEvent(QPaintEvent* event)
{
    QRubberBand::paintEvent(event);
    QPainter painter(this);
    drawNumber(painter);
}

/// A band in conflict may go anywhere, so that it can be pulled free; any other only where it
/// overlaps none.
void RectangleRubberBand::showIfAllowed(const QRect& band)
{
    // A corner can collapse the band; what is shown keeps a pixel.
    const QRect shown(band.topLeft(), band.size().expandedTo({1, 1}));
    const int conflict = m_label->intersectingRegion(m_regionNo, shown);
    const bool isFree = conflict < 0 && m_label->canBeFollowed(m_regionNo, shown);
    if (!isFree && !m_inConflict)
        return;
    setGeometry(shown);
    onIntersectionFound(conflict);
}

void RectangleRubberBand::applyColor()
{
    const QColor color = shownColor();
    if (color == m_appliedColor)
        return;
    m_appliedColor = color;
    setStyleSheet(QStringLiteral("QLabel { color: %1; border-color: %1 }").arg(color.name()));
    QColor highlight = color;
    highlight.setAlpha(bandAlpha);
    QPalette colors = palette();
    colors.setBrush(QPalette::Highlight, highlight);
    setPalette(colors);
}

void RectangleRubberBand::drawNumber(QPainter& painter) const
{
    const QString text
        = m_selected ? QStringLiteral("[ %1 ]").arg(m_regionNo) : QString::number(m_regionNo);
    painter.setFont(numberFont());
    if (!m_label) {
        painter.drawText(rect(), Qt::AlignCenter, text);
        return;
    }

    const QFontMetrics metrics(numberFont(), this);
    const QPoint centre = rect().center();
    QPainterPath digits;
    digits.addText(centre.x() - metrics.horizontalAdvance(text) / 2,
                   centre.y() + metrics.height() / 3, numberFont(), text);
    const QRect area = digits.boundingRect().toAlignedRect().intersected(rect()).translated(pos());
    const QRect onLabel = area.intersected(m_label->rect());
    if (onLabel.isEmpty())
        return;
    // A brush smooths the digits; a clip would leave them jagged.
    const QPoint origin = onLabel.topLeft() - pos();
    QBrush negative(negativeOf(m_label, onLabel));
    negative.setTransform(QTransform::fromTranslate(origin.x(), origin.y()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(digits, negative);
}

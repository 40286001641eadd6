#include "multiregion/label/RectangleRubberBand.h"

#include "multiregion/label/BandSurroundings.h"
#include "multiregion/label/LineRubberBand.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QStyleOption>

#include <utility>

namespace {

constexpr int bandAlpha = 80;

const QFont& numberFont()
{
    static const QFont font(QStringLiteral("Helvetica"), 12);
    return font;
}

} // namespace

RectangleRubberBand::RectangleRubberBand(int regionNo, const QRect& geometry,
                                         const QSize& minimumSize, const QColor& color,
                                         BandSurroundings* label)
    : QRubberBand(QRubberBand::Rectangle, label)
    , m_regionNo(regionNo)
    , m_color(color)
    , m_label(label)
{
    m_limits.minimum = minimumSize;
    setGeometry(geometry);
    setAccessibleName(QStringLiteral("Region%1").arg(regionNo));
    applyColor();
    prepareNumber();
}

void RectangleRubberBand::setOwnColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    applyColor();
    emit colorChanged(m_regionNo, shownColor());
}

/// Across a picture of one pixel there is nothing to drag.
HandleGrab RectangleRubberBand::grabAt(const QPoint& point) const
{
    HandleGrab grab = handleGrabAt(geometry(), point);
    if (m_label && m_label->shownSize().height() <= 1)
        grab.vertical.reset();
    if (m_label && m_label->shownSize().width() <= 1)
        grab.horizontal.reset();
    return grab;
}

void RectangleRubberBand::press(const QPoint& point)
{
    m_grab = grabAt(point);
    m_pressPoint = point;
    m_atPress = geometry();
    emit regionBandSelected(m_regionNo);
}

void RectangleRubberBand::rescaleDrag(const QSize& from, const QSize& to, const QRect& atPress)
{
    if (m_pressPoint && !from.isEmpty())
        m_pressPoint
            = QPoint(qRound(static_cast<double>(m_pressPoint->x()) * to.width() / from.width()),
                     qRound(static_cast<double>(m_pressPoint->y()) * to.height() / from.height()));
    m_atPress = atPress;
}

void RectangleRubberBand::dropDrag()
{
    m_pressPoint.reset();
    m_grab = {};
}

void RectangleRubberBand::onResizeFinished(QPoint point)
{
    // The press point follows the pointer, and a release mostly comes where the last move ended:
    // then the geometry tells whether the drag led anywhere.
    const bool isMoved = m_pressPoint && (point != m_pressPoint || geometry() != m_atPress);
    const bool report = !m_grab.isMove() || isMoved;
    dropDrag();
    if (report)
        emit geometryChanged(m_regionNo, geometry());
}

void RectangleRubberBand::resizeMoveToPoint(QPoint point)
{
    if (!m_label)
        return;
    if (!m_grab.isMove()) {
        showIfAllowed(resizedRegionBand(geometry(), m_grab, point, m_limits));
        return;
    }
    if (!m_pressPoint || point == m_pressPoint)
        return;
    MoveConstraints constraints;
    for (const MoveConstraints& line : qAsConst(m_lineConstraints))
        constraints = combined(constraints, line);
    const QPoint delta = point - *m_pressPoint;
    m_pressPoint = point;
    showIfAllowed(movedRegionBand(geometry(), delta, m_label->shownSize(), constraints));
}

void RectangleRubberBand::onIntersectionFound(int conflictRegion)
{
    const bool inConflict = conflictRegion >= 0 && conflictRegion < m_regionNo;
    if (inConflict != std::exchange(m_inConflict, inConflict))
        applyColor();
    emit colorChanged(m_regionNo, shownColor());
}

void RectangleRubberBand::highlightIfSelected(int selectedRegion)
{
    const bool selected = selectedRegion == m_regionNo;
    if (selected == m_selected)
        return;
    m_selected = selected;
    prepareNumber();
    update();
}

void RectangleRubberBand::onNeighbourRegionActivated(int regionNo, bool activated)
{
    // Region 0 has none below it; neighbours that go can only solve a conflict.
    if (m_regionNo == 0 || regionNo >= m_regionNo || (!activated && !m_inConflict) || !m_label)
        return;
    const bool before = m_inConflict;
    const QPointer<RectangleRubberBand> guard(this);
    onIntersectionFound(m_label->intersecting(m_regionNo, geometry()).value_or(-1));
    if (guard && m_inConflict != before)
        emit geometryChanged(m_regionNo, geometry());
}

void RectangleRubberBand::onConstraintBandChanged(QRect lineBandGeometry)
{
    const auto* line = qobject_cast<LineRubberBand*>(sender());
    if (lineBandGeometry.isNull())
        m_lineConstraints.remove(line);
    else if (line)
        m_lineConstraints[line] = constraintsFromLine(line->group(), line->edge(), line->position(),
                                                      m_regionNo, geometry());
}

void RectangleRubberBand::changeEvent(QEvent* event)
{
    QRubberBand::changeEvent(event);
    m_image.reset();
    // A style sheet brings the palette back that it was set under.
    if (event->type() == QEvent::PaletteChange
        && palette().color(QPalette::Highlight) != highlight())
        applyHighlight();
}

void RectangleRubberBand::paintEvent(QPaintEvent* event)
{
    if (!m_image) {
        QStyleOptionRubberBand option;
        initStyleOption(&option);
        m_image.emplace(option, *this);
    }
    if (m_image->fits(size())) {
        QPainter painter(this);
        m_image->paint(painter, rect(), event->region());
    } else {
        QRubberBand::paintEvent(event);
    }
    const QRect number = m_number.boundingRect().toAlignedRect().translated(rect().center());
    if (!m_label) {
        QPainter painter(this);
        painter.setFont(numberFont());
        painter.drawText(rect(), Qt::AlignCenter, numberText());
    } else if (event->region().intersects(number)) {
        // Which is dear; lines and other bands that pass by touch it seldom.
        drawNumber(number & rect());
    }
}

/// A band in conflict may go anywhere, to be pulled free; any other where it overlaps none.
void RectangleRubberBand::showIfAllowed(const QRect& band)
{
    // A corner can collapse the band; what is shown keeps a pixel.
    const QRect shown(band.topLeft(), band.size().expandedTo({1, 1}));
    const std::optional<int> conflict = m_label->intersecting(m_regionNo, shown);
    const bool isFree = !conflict && m_label->canBeFollowed(m_regionNo, shown);
    if (!isFree && !m_inConflict)
        return;
    setGeometry(shown);
    onIntersectionFound(conflict.value_or(-1));
}

void RectangleRubberBand::applyColor()
{
    setStyleSheet(
        QStringLiteral("QLabel { color: %1; border-color: %1 }").arg(shownColor().name()));
    applyHighlight();
}

void RectangleRubberBand::applyHighlight()
{
    QPalette colors = palette();
    colors.setBrush(QPalette::Highlight, highlight());
    setPalette(colors);
}

QColor RectangleRubberBand::highlight() const
{
    QColor color = shownColor();
    color.setAlpha(bandAlpha);
    return color;
}

/// Around the origin.
void RectangleRubberBand::prepareNumber()
{
    const QString text = numberText();
    const QFontMetrics metrics(numberFont(), this);
    const QPoint baseline(-(metrics.horizontalAdvance(text) / 2), metrics.height() / 3);
    m_number = QPainterPath();
    m_number.addText(baseline, numberFont(), text);
}

void RectangleRubberBand::drawNumber(const QRect& area)
{
    const QRect onLabel = area.translated(pos()) & m_label->rect();
    if (onLabel.isEmpty())
        return;
    // Without the label's bands: they would be painted from within their own painting.
    QImage picture(onLabel.size(), QImage::Format_RGB32);
    picture.fill(m_label->palette().color(QPalette::Window));
    m_label->render(&picture, QPoint(), onLabel, QWidget::DrawWindowBackground);
    picture.invertPixels();
    // A brush smooths the digits; a clip would leave them jagged.
    QBrush negative(picture);
    const QPoint origin = onLabel.topLeft() - pos();
    negative.setTransform(QTransform::fromTranslate(origin.x(), origin.y()));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(m_number.translated(rect().center()), negative);
}

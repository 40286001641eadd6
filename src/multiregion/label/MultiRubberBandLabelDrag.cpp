// The drags of the region label: from the press to the report.

#include "multiregion/label/DragChanges.h"
#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "multiregion/label/RectangleRubberBand.h"

#include <QMouseEvent>

#include <algorithm>
#include <utility>

bool MultiRubberBandLabel::event(QEvent* event)
{
    const bool handled = QLabel::event(event);
    if (event->type() == QEvent::UngrabMouse || event->type() == QEvent::WindowDeactivate)
        dropDrag();
    if (isCoverChange(event))
        coverWithPicture(this, pixmap(Qt::ReturnByValue));
    return handled;
}

void MultiRubberBandLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        dropDrag();
}

void MultiRubberBandLabel::hideEvent(QHideEvent* event)
{
    QLabel::hideEvent(event);
    dropDrag();
}

void MultiRubberBandLabel::mousePressEvent(QMouseEvent* event)
{
    if (isDragging() && event->button() != m_dragButton)
        return;
    m_dragButton = event->button();
    const QPointer<MultiRubberBandLabel> guard(this);
    const bool hasDrag = isDragging() || startDrag(event->pos());
    if (guard && hasDrag)
        emit rubberChangeStarted(event->pos());
}

void MultiRubberBandLabel::mouseMoveEvent(QMouseEvent* event)
{
    // Only the window system knows the buttons: a drag without its own has missed its release.
    if (event->spontaneous() && !event->buttons().testFlag(m_dragButton))
        dropDrag();
    const QPoint point = clampedToImage(event->pos());
    updateCursor(point);
    if (!isDragging())
        return;
    const QPointer<MultiRubberBandLabel> guard(this);
    emit mouseMoved(point);
    if (!guard)
        return;
    if (auto* band = m_bands.value(m_draggedRegion)) {
        m_regions.setBand(m_draggedRegion, band->geometry());
        m_lines.follow(m_draggedRegion, m_regions);
    }
    previewLine();
}

void MultiRubberBandLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isDragging() || event->button() != m_dragButton)
        return;
    const LineRubberBand* line = m_draggedLine;
    QVector<RegionChange> changes;
    if (line)
        changes = changesAfterLineDrag(
            m_regions, line->group(), m_mapping,
            spanOf(m_regions.band(line->group().master()), line->group().axis()));
    m_dragState = NoDrag;
    m_draggedRegion = -1;
    m_draggedLine.clear();
    const QPointer<MultiRubberBandLabel> guard(this);
    emit rubberChangeFinished(event->pos());
    if (guard)
        report(changes);
    if (guard)
        applyWaiting();
}

/// False when there is nothing to drag at the point, or nothing any more once the page was told.
bool MultiRubberBandLabel::startDrag(const QPoint& point)
{
    if (LineRubberBand* line = m_lines.lineAt(point)) {
        m_dragState = LineDrag;
        m_draggedLine = line;
        m_lines.grab(line, m_regions, m_mapping);
    } else if (auto* band = m_bands.value(regionUnder(point))) {
        m_dragState = BandDrag;
        m_draggedRegion = band->regionNo();
        const QPointer<MultiRubberBandLabel> guard(this);
        band->press(point);
        if (!guard)
            return false;
    }
    return isDragging();
}

void MultiRubberBandLabel::previewLine()
{
    if (!m_draggedLine)
        return;
    const ConstraintGroup& group = m_draggedLine->group();
    const RegionSpan span = spanForLine(m_draggedLine->edge(), m_draggedLine->position(),
                                        spanOf(m_regions.band(group.master()), group.axis()));
    for (const int member : group.members) {
        m_regions.setBand(member, withSpan(m_regions.band(member), group.axis(), span));
        m_bands[member]->setGeometry(m_regions.band(member));
    }
}

void MultiRubberBandLabel::dropDrag()
{
    if (!isDragging())
        return;
    m_dragState = NoDrag;
    if (auto* band = m_bands.value(std::exchange(m_draggedRegion, -1)))
        band->dropDrag();
    if (m_draggedLine)
        m_draggedLine->onMoveFinished();
    m_draggedLine.clear();
    applyWaiting();
    emit rubberChangeDropped();
}

void MultiRubberBandLabel::applyWaiting()
{
    if (!isDragging()) {
        const QMap<int, QRect> waiting = std::exchange(m_waiting, {});
        for (auto it = waiting.cbegin(); it != waiting.cend(); ++it)
            m_regions.setRectangle(it.key(), it.value());
    }
    arrange();
}

QPoint MultiRubberBandLabel::clampedToImage(const QPoint& point) const
{
    return {std::clamp(point.x(), 0, std::max(0, imageSize().width())),
            std::clamp(point.y(), 0, std::max(0, imageSize().height()))};
}

/// A line leaves the cursor as it is.
void MultiRubberBandLabel::updateCursor(const QPoint& point)
{
    if (m_lines.lineAt(point))
        return;
    if (const RectangleRubberBand* band = m_bands.value(regionUnder(point)))
        setCursor(cursorForGrab(band->grabAt(point)));
    else
        unsetCursor();
}

void MultiRubberBandLabel::onBandPressed(int regionNo)
{
    const QPointer<MultiRubberBandLabel> guard(this);
    selectRegion(regionNo);
    m_pressedRegion = regionNo;
    emit regionSelected(regionNo);
    if (guard)
        m_pressedRegion = -1;
}

void MultiRubberBandLabel::onBandGeometryChanged(int regionNo, const QRect& band)
{
    report(changesAfterBandDrag(m_regions, m_groups, m_mapping, regionNo, band));
}

/// The receiver may change anything, hence everything is in place before the first signal; it may
/// also delete the page with this label.
void MultiRubberBandLabel::report(const QVector<RegionChange>& changes)
{
    if (changes.isEmpty())
        return;
    for (const RegionChange& change : changes) {
        m_waiting.remove(change.region);
        m_regions.setRectangle(change.region, change.rectangle);
    }
    applyWaiting();
    const QPointer<MultiRubberBandLabel> guard(this);
    for (const RegionChange& change : changes) {
        if (guard)
            emit regionGeometryChanged(change.region, change.rectangle);
    }
}

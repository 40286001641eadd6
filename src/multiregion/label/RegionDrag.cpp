#include "multiregion/label/RegionDrag.h"

#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/RectangleRubberBand.h"
#include "multiregion/label/RegionStore.h"

#include <utility>

QVector<int> RegionDrag::held() const
{
    if (m_line)
        return m_line->group().members;
    return m_band ? QVector<int>{m_band->regionNo()} : QVector<int>();
}

bool RegionDrag::isPossible() const
{
    return !m_line || m_regions->groups().contains(m_line->group());
}

void RegionDrag::begin(LineRubberBand* line)
{
    m_line = line;
    boundLine();
    line->onMoveStarted();
}

void RegionDrag::begin(RectangleRubberBand* band, const QPoint& point)
{
    m_band = band;
    band->press(point);
}

void RegionDrag::moveTo(const QPoint& point)
{
    if (!m_line) {
        m_band->resizeMoveToPoint(point); // may delete this
        return;
    }
    m_line->moveToPoint(point);
    const ConstraintGroup& group = m_line->group();
    const QRect master = m_regions->at(group.master()).band->geometry();
    const Span<int> span
        = spanForLine(m_line->edge(), m_line->position(), spanOf(master, group.axis()));
    for (const int member : group.members) {
        QWidget* const band = m_regions->at(member).band;
        band->setGeometry(withSpan(band->geometry(), group.axis(), span));
    }
}

void RegionDrag::rescaleFrom(const SensorMapping& before)
{
    const SensorMapping& mapping = m_regions->mapping();
    const QVector<RegionChange> left = changes(before);
    for (const int region : held())
        m_regions->at(region).band->setGeometry(m_regions->placed(region));
    for (const RegionChange& change : left) {
        if (holds(change.region))
            m_regions->at(change.region).band->setGeometry(labelRect(change.rectangle, mapping));
    }
    if (m_line)
        boundLine();
    else if (m_band)
        m_band->rescaleDrag(before.shown, mapping.shown, m_regions->placed(m_band->regionNo()));
}

QVector<RegionChange> RegionDrag::end(const QPoint& point)
{
    QVector<RegionChange> last;
    if (m_band)
        m_band->onResizeFinished(point); // which tells whether there is something to report
    if (m_line || (m_band && m_noted.remove(m_band->regionNo())))
        last = changes(m_regions->mapping());
    QVector<RegionChange> result;
    for (const int region : qAsConst(m_noted))
        result << RegionChange{region, m_regions->at(region).rectangle};
    drop();
    return result + last;
}

void RegionDrag::drop()
{
    if (auto* line = std::exchange(m_line, nullptr))
        line->onMoveFinished();
    if (auto* band = std::exchange(m_band, nullptr))
        band->dropDrag();
    m_noted.clear();
}

QVector<RegionChange> RegionDrag::changes(const SensorMapping& mapping) const
{
    if (m_line)
        return changesAfterLineDrag(m_regions->shown(), m_line->group(), mapping);
    if (m_band)
        return changesAfterBandDrag(m_regions->shown(), m_regions->groups(), mapping,
                                    m_band->regionNo());
    return {};
}

void RegionDrag::boundLine()
{
    m_line->setBounds(
        lineBounds(m_regions->shown(), m_line->group(), m_line->edge(), m_regions->mapping()));
}

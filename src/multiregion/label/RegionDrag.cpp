#include "multiregion/label/RegionDrag.h"

#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/RectangleRubberBand.h"
#include "multiregion/label/RegionStore.h"

#include <QPointer>

#include <utility>

namespace {

QPoint rescaled(const QPoint& point, const QSize& from, const QSize& to)
{
    if (from.isEmpty())
        return point;
    return {qRound(static_cast<double>(point.x()) * to.width() / from.width()),
            qRound(static_cast<double>(point.y()) * to.height() / from.height())};
}

} // namespace

RegionDrag::RegionDrag(RegionStore* regions)
    : m_regions(regions)
{
}

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
    if (m_line) {
        m_line->moveToPoint(point);
        const ConstraintGroup& group = m_line->group();
        const RegionSpan span = spanForLine(m_line->edge(), m_line->position(),
                                            spanOf(m_regions->band(group.master()), group.axis()));
        for (const int member : group.members)
            m_regions->setBand(member, withSpan(m_regions->band(member), group.axis(), span));
    } else if (const QPointer<RectangleRubberBand> band = m_band) {
        band->resizeMoveToPoint(point);
        if (band && band == m_band)
            m_regions->setBand(band->regionNo(), band->geometry());
    }
}

void RegionDrag::rescaleFrom(const SensorMapping& before)
{
    const QVector<RegionChange> left = changes(before);
    for (const int region : held())
        m_regions->setBand(region, m_regions->placed(region));
    for (const RegionChange& change : left) {
        if (holds(change.region))
            m_regions->setBand(change.region, labelRect(change.rectangle, m_regions->mapping()));
    }
    if (m_line)
        boundLine();
    else if (m_band)
        m_band->rescaleDrag(
            rescaled(m_band->pressPoint(), before.shown, m_regions->mapping().shown),
            m_regions->placed(m_band->regionNo()));
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
        result << RegionChange{region, m_regions->rectangle(region)};
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

/// As the regions were at the press.
void RegionDrag::boundLine()
{
    const ConstraintGroup& group = m_line->group();
    const Qt::Orientation axis = group.axis();
    const BandSizeLimits limits = m_regions->bandLimits(group.members);
    LineSurroundings surroundings{spanOf(m_regions->placed(group.master()), axis),
                                  {},
                                  lengthOf(m_regions->mapping().shown, axis),
                                  lengthOf(limits.minimum, axis),
                                  lengthOf(limits.maximum, axis)};
    const QVector<ShownRegion> shown = m_regions->shown();
    for (const ShownRegion& region : shown) {
        if (!group.members.contains(region.number))
            surroundings.others << spanOf(m_regions->placed(region.number), axis);
    }
    m_line->setBounds(lineBounds(m_line->edge(), surroundings));
}

#include "multiregion/label/ConstraintLineSet.h"

#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/RectangleRubberBand.h"
#include "multiregion/label/RegionStore.h"
#include "sensor/SensorLabel.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

void connectLine(LineRubberBand* line, RectangleRubberBand* band)
{
    QObject::connect(line, &LineRubberBand::geometryChanged, band,
                     &RectangleRubberBand::onConstraintBandChanged);
}

} // namespace

ConstraintLineSet::ConstraintLineSet(SensorLabel* label, const RegionStore* regions)
    : m_label(label)
    , m_regions(regions)
{
}

void ConstraintLineSet::update()
{
    QVector<LineRubberBand*> former = std::exchange(m_lines, {});
    for (const ConstraintGroup& group : m_regions->groups()) {
        for (const BandEdge edge : {BandEdge::Leading, BandEdge::Trailing}) {
            const auto it = std::find_if(former.begin(), former.end(), [&](LineRubberBand* line) {
                return line->group().kind == group.kind && line->edge() == edge
                    && line->group().master() == group.master();
            });
            LineRubberBand* line = it == former.end() ? create(group) : *it;
            former.removeOne(line);
            line->setEdge(group, edge);
            place(line);
            m_lines << line;
        }
    }
    for (LineRubberBand* line : qAsConst(former)) {
        emit line->geometryChanged({});
        line->hide();
        line->disconnect();
        line->deleteLater();
    }
    for (LineRubberBand* line : qAsConst(m_lines))
        line->announce();
}

void ConstraintLineSet::follow(int region)
{
    for (LineRubberBand* line : qAsConst(m_lines)) {
        if (line->group().master() == region)
            place(line);
    }
}

void ConstraintLineSet::setColor(int master, const QColor& color)
{
    for (LineRubberBand* line : qAsConst(m_lines)) {
        if (line->group().master() == master)
            line->setColor(color);
    }
}

void ConstraintLineSet::raise()
{
    for (LineRubberBand* line : qAsConst(m_lines))
        line->raise();
}

void ConstraintLineSet::connectTo(RectangleRubberBand* band)
{
    for (LineRubberBand* line : qAsConst(m_lines))
        connectLine(line, band);
}

LineRubberBand* ConstraintLineSet::lineAt(const QPoint& point, const QRect& band) const
{
    LineRubberBand* nearest = nullptr;
    int distance = std::numeric_limits<int>::max();
    for (LineRubberBand* line : m_lines) {
        const std::optional<int> own = line->distanceTo(point);
        if (own && *own < distance) {
            nearest = line;
            distance = *own;
        }
    }
    if (!nearest || !band.contains(point))
        return nearest;

    const Qt::Orientation axis = nearest->group().axis();
    QVector<int> positions;
    for (const LineRubberBand* line : m_lines) {
        if (line->group().axis() == axis)
            positions << line->position();
    }
    const int place = axis == Qt::Horizontal ? point.x() : point.y();
    return isForLines(spanOf(band, axis), place, positions) ? nearest : nullptr;
}

LineRubberBand* ConstraintLineSet::create(const ConstraintGroup& group)
{
    const int orientation = group.kind == ConstraintGroup::Row ? LineRubberBand::horizontal
                                                               : LineRubberBand::vertical;
    const QColor color = m_regions->at(group.master()).band->shownColor();
    auto* line = new LineRubberBand(orientation, 0, m_label, 1, color, m_label);
    for (RectangleRubberBand* band : m_regions->bands())
        connectLine(line, band);
    line->show();
    return line;
}

void ConstraintLineSet::place(LineRubberBand* line)
{
    const ConstraintGroup& group = line->group();
    const QRect master = m_regions->at(group.master()).band->geometry();
    const QSize image = m_regions->mapping().shown;
    line->place(linePosition(line->edge(), spanOf(master, group.axis())),
                group.kind == ConstraintGroup::Row ? image.width() : image.height());
}

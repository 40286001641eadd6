#include "multiregion/label/ConstraintLineSet.h"

#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/RectangleRubberBand.h"
#include "multiregion/label/RegionStore.h"
#include "sensor/SensorLabel.h"

#include <algorithm>

namespace {

void connectLine(LineRubberBand* line, RectangleRubberBand* band)
{
    QObject::connect(line, &LineRubberBand::geometryChanged, band,
                     &RectangleRubberBand::onConstraintBandChanged);
}

} // namespace

ConstraintLineSet::ConstraintLineSet(SensorLabel* label)
    : m_label(label)
{
}

void ConstraintLineSet::update(const RegionStore& regions, const Bands& bands)
{
    QVector<LineRubberBand*> current;
    for (const ConstraintGroup& group : regions.groups()) {
        const QColor color = bands[group.master()]->shownColor();
        for (const LineEdge edge : {LineEdge::Leading, LineEdge::Trailing}) {
            LineRubberBand* line = find(group, edge);
            if (!line)
                line = create(group, color, bands);
            line->setEdge(group, edge);
            line->setColor(color);
            place(line, regions);
            current << line;
        }
    }
    removeAllBut(current);
    for (LineRubberBand* line : qAsConst(current))
        line->announce();
}

void ConstraintLineSet::follow(int region, const RegionStore& regions)
{
    for (LineRubberBand* line : m_lines.value(region))
        place(line, regions);
}

void ConstraintLineSet::setColor(int master, const QColor& color)
{
    for (LineRubberBand* line : m_lines.value(master))
        line->setColor(color);
}

void ConstraintLineSet::raise()
{
    for (const auto& lines : qAsConst(m_lines)) {
        for (LineRubberBand* line : lines)
            line->raise();
    }
}

void ConstraintLineSet::connectTo(RectangleRubberBand* band)
{
    for (const auto& lines : qAsConst(m_lines)) {
        for (LineRubberBand* line : lines)
            connectLine(line, band);
    }
}

LineRubberBand* ConstraintLineSet::lineAt(const QPoint& point, const QRect& band) const
{
    LineRubberBand* nearest = nullptr;
    QMap<Qt::Orientation, QVector<int>> positions;
    for (const auto& lines : m_lines) {
        for (LineRubberBand* line : lines) {
            positions[line->group().axis()] << line->position();
            const std::optional<int> distance = line->distanceTo(point);
            if (distance && (!nearest || *distance < *nearest->distanceTo(point)))
                nearest = line;
        }
    }
    if (!nearest || !band.contains(point))
        return nearest;
    const Qt::Orientation axis = nearest->group().axis();
    const int place = axis == Qt::Horizontal ? point.x() : point.y();
    return isForLines(spanOf(band, axis), place, positions[axis]) ? nearest : nullptr;
}

LineRubberBand* ConstraintLineSet::find(const ConstraintGroup& group, LineEdge edge) const
{
    const auto lines = m_lines.value(group.master());
    const auto it = std::find_if(lines.begin(), lines.end(), [&](const LineRubberBand* line) {
        return line->group().kind == group.kind && line->edge() == edge;
    });
    return it == lines.end() ? nullptr : *it;
}

LineRubberBand* ConstraintLineSet::create(const ConstraintGroup& group, const QColor& color,
                                          const Bands& bands)
{
    const int orientation = group.kind == ConstraintGroup::Row ? LineRubberBand::horizontal
                                                               : LineRubberBand::vertical;
    auto* line = new LineRubberBand(orientation, 0, m_label, 1, color, m_label);
    for (RectangleRubberBand* band : bands)
        connectLine(line, band);
    m_lines[group.master()] << line;
    line->show();
    return line;
}

void ConstraintLineSet::removeAllBut(const QVector<LineRubberBand*>& kept)
{
    for (auto it = m_lines.begin(); it != m_lines.end();) {
        QVector<LineRubberBand*> staying;
        for (LineRubberBand* line : qAsConst(*it)) {
            if (kept.contains(line)) {
                staying << line;
                continue;
            }
            emit line->geometryChanged({});
            line->hide();
            line->disconnect();
            line->deleteLater();
        }
        *it = staying;
        it = staying.isEmpty() ? m_lines.erase(it) : std::next(it);
    }
}

void ConstraintLineSet::place(LineRubberBand* line, const RegionStore& regions)
{
    const ConstraintGroup& group = line->group();
    const QSize image = regions.mapping().shown;
    line->place(linePosition(line->edge(), spanOf(regions.band(group.master()), group.axis())),
                group.kind == ConstraintGroup::Row ? image.width() : image.height());
}

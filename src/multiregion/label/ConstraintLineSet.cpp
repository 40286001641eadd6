#include "multiregion/label/ConstraintLineSet.h"

#include "multiregion/label/KnownRegions.h"
#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "multiregion/label/RectangleRubberBand.h"
#include "multiregion/label/RegionBandLimits.h"

#include <algorithm>

ConstraintLineSet::ConstraintLineSet(MultiRubberBandLabel* label)
    : m_label(label)
{
}

void ConstraintLineSet::update(const QVector<ConstraintGroup>& groups, const KnownRegions& regions)
{
    QVector<LineRubberBand*> current;
    for (const ConstraintGroup& group : groups) {
        for (const LineEdge edge : {LineEdge::Leading, LineEdge::Trailing}) {
            LineRubberBand* line = find(group, edge);
            if (!line)
                line = create(group);
            line->setEdge(group, edge);
            line->setColor(m_label->shownColor(group.master()));
            place(line, regions);
            current << line;
        }
    }
    removeAllBut(current);
    for (LineRubberBand* line : qAsConst(current))
        line->announce();
}

void ConstraintLineSet::follow(int region, const KnownRegions& regions)
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
            QObject::connect(line, &LineRubberBand::geometryChanged, band,
                             &RectangleRubberBand::onConstraintBandChanged);
    }
}

LineRubberBand* ConstraintLineSet::lineAt(const QPoint& point) const
{
    LineRubberBand* nearest = nullptr;
    for (const auto& lines : m_lines) {
        for (LineRubberBand* line : lines) {
            const int distance = line->distanceTo(point);
            if (distance >= 0 && (!nearest || distance < nearest->distanceTo(point)))
                nearest = line;
        }
    }
    return nearest;
}

void ConstraintLineSet::grab(LineRubberBand* line, const KnownRegions& regions,
                             const SensorMapping& mapping)
{
    const ConstraintGroup& group = line->group();
    const Qt::Orientation axis = group.axis();
    const BandSizeLimits limits = regionBandLimits(regions, group.members, mapping);
    LineSurroundings surroundings{spanOf(regions.band(group.master()), axis),
                                  {},
                                  lengthOf(mapping.shown, axis),
                                  lengthOf(limits.minimum, axis),
                                  lengthOf(limits.maximum, axis)};
    const auto shown = regions.shown();
    for (const int region : shown) {
        if (!group.members.contains(region))
            surroundings.others << spanOf(regions.band(region), axis);
    }
    line->setBounds(lineBounds(line->edge(), surroundings));
    line->onMoveStarted();
}

LineRubberBand* ConstraintLineSet::find(const ConstraintGroup& group, LineEdge edge) const
{
    const auto lines = m_lines.value(group.master());
    const auto it = std::find_if(lines.begin(), lines.end(), [&](const LineRubberBand* line) {
        return line->group().kind == group.kind && line->edge() == edge;
    });
    return it == lines.end() ? nullptr : *it;
}

LineRubberBand* ConstraintLineSet::create(const ConstraintGroup& group)
{
    const int orientation = group.kind == ConstraintGroup::Row ? LineRubberBand::horizontal
                                                               : LineRubberBand::vertical;
    auto* line = new LineRubberBand(orientation, 0, m_label, 1, m_label->shownColor(group.master()),
                                    m_label);
    m_label->connectLine(line);
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

void ConstraintLineSet::place(LineRubberBand* line, const KnownRegions& regions)
{
    const ConstraintGroup& group = line->group();
    const QSize image = m_label->imageSize();
    line->place(linePosition(line->edge(), spanOf(regions.band(group.master()), group.axis())),
                group.kind == ConstraintGroup::Row ? image.width() : image.height());
}

#include "multiregion/label/RegionBands.h"

#include "multiregion/label/BandSurroundings.h"
#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/RectangleRubberBand.h"
#include "multiregion/label/RegionDrag.h"
#include "multiregion/label/RegionStore.h"

#include <utility>

namespace {

void connectLine(LineRubberBand* line, RectangleRubberBand* band)
{
    QObject::connect(line, &LineRubberBand::geometryChanged, band,
                     &RectangleRubberBand::onConstraintBandChanged);
}

} // namespace

RegionBands::RegionBands(BandSurroundings* label, RegionStore* regions)
    : m_label(label)
    , m_regions(regions)
{
}

RectangleRubberBand* RegionBands::show(int region)
{
    KnownRegion& known = (*m_regions)[region];
    known.band
        = new RectangleRubberBand(region, m_regions->placed(region),
                                  m_regions->limitsOfBand(region).minimum, known.color, m_label);
    for (LineRubberBand* line : qAsConst(m_lines))
        connectLine(line, known.band);
    known.band->highlightIfSelected(m_selected);
    known.band->show();
    restack();
    return known.band;
}

/// The band may be on the stack, in the midst of its own report.
void RegionBands::hide(int region)
{
    RectangleRubberBand* const band = std::exchange((*m_regions)[region].band, nullptr);
    band->hide();
    band->disconnect();
    m_label->disconnect(band);
    band->deleteLater();
}

void RegionBands::select(int region)
{
    m_selected = region;
    for (RectangleRubberBand* band : m_regions->bands())
        band->highlightIfSelected(region);
    restack();
}

void RegionBands::arrange(const RegionDrag& drag)
{
    const std::vector<RectangleRubberBand*> bands = m_regions->bands();
    QStringList spoken;
    for (RectangleRubberBand* band : bands) {
        spoken << spokenRegion(band->accessibleName(), m_regions->at(band->regionNo()).rectangle);
        describe(band, spoken.last());
        if (!drag.holds(band->regionNo()))
            band->setGeometry(m_regions->placed(band->regionNo()));
        band->setSizeLimits(m_regions->limitsOfBand(band->regionNo()));
    }
    describe(m_label, spoken.join(QLatin1Char('\n')));
    updateLines();
    for (RectangleRubberBand* band : bands) {
        const auto conflict = m_regions->intersecting(band->regionNo(), band->geometry());
        band->onIntersectionFound(conflict.value_or(-1));
    }
}

void RegionBands::follow(const RegionDrag& drag)
{
    for (LineRubberBand* line : qAsConst(m_lines)) {
        if (drag.holds(line->group().master()))
            placeLine(line);
    }
}

void RegionBands::setLineColor(int master, const QColor& color)
{
    for (LineRubberBand* line : qAsConst(m_lines)) {
        if (line->group().master() == master)
            line->setColor(color);
    }
}

RectangleRubberBand* RegionBands::bandAt(const QPoint& point) const
{
    RectangleRubberBand* result = nullptr;
    for (RectangleRubberBand* band : m_regions->bands()) {
        const bool isBelow = result && result->regionNo() == m_selected;
        if (!isBelow && band->geometry().contains(point))
            result = band;
    }
    return result;
}

LineRubberBand* RegionBands::lineAt(const QPoint& point) const
{
    LineRubberBand* nearest = nullptr;
    int distance = lineGrabZone + 1;
    for (LineRubberBand* line : m_lines) {
        const int own = line->distanceTo(point).value_or(distance);
        if (own < distance) {
            nearest = line;
            distance = own;
        }
    }
    const RectangleRubberBand* band = bandAt(point);
    if (!nearest || !band)
        return nearest;

    const Qt::Orientation axis = nearest->group().axis();
    QVector<int> positions;
    for (const LineRubberBand* line : m_lines) {
        if (line->group().axis() == axis)
            positions << line->position();
    }
    const int place = axis == Qt::Horizontal ? point.x() : point.y();
    return isForLines(spanOf(band->geometry(), axis), place, positions) ? nearest : nullptr;
}

/// Has exactly the lines of the groups, and tells the bands.
void RegionBands::updateLines()
{
    auto former = std::exchange(m_lines, {});
    for (const ConstraintGroup& group : m_regions->groups()) {
        for (const BandEdge edge : {BandEdge::Leading, BandEdge::Trailing}) {
            const LineKey key{group.kind, group.master(), edge};
            LineRubberBand* const known = former.take(key);
            LineRubberBand* const line = known ? known : makeLine(group);
            line->setEdge(group, edge);
            placeLine(line);
            m_lines.insert(key, line);
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

LineRubberBand* RegionBands::makeLine(const ConstraintGroup& group)
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

/// Along its master's band.
void RegionBands::placeLine(LineRubberBand* line)
{
    const ConstraintGroup& group = line->group();
    const QRect master = m_regions->at(group.master()).band->geometry();
    const QSize image = m_regions->mapping().shown;
    line->place(linePosition(line->edge(), spanOf(master, group.axis())),
                group.kind == ConstraintGroup::Row ? image.width() : image.height());
}

/// As a press finds them: lines, the selected band, the others by number.
void RegionBands::restack()
{
    for (RectangleRubberBand* band : m_regions->bands())
        band->raise();
    if (RectangleRubberBand* band = m_regions->at(m_selected).band)
        band->raise();
    for (LineRubberBand* line : qAsConst(m_lines))
        line->raise();
}

#include "regions/automatic/AutoRegionView.h"

#include <QDoubleSpinBox>

#include <algorithm>
#include <limits>

namespace {

constexpr std::size_t indexOf(RegionNumber number)
{
    return static_cast<std::size_t>(number);
}

} // namespace

AutoRegionView::AutoRegionView(AutoRegionCamera& camera, const Boxes& boxes)
    : m_camera(camera)
    , m_fields{NumberField(boxes[0]), NumberField(boxes[1]), NumberField(boxes[2]),
               NumberField(boxes[3]), NumberField(boxes[4]), NumberField(boxes[5])}
{
}

NumberField& AutoRegionView::field(RegionNumber number)
{
    return m_fields[indexOf(number)];
}

const NumberField& AutoRegionView::field(RegionNumber number) const
{
    return m_fields[indexOf(number)];
}

AutoRegion AutoRegionView::shown() const
{
    const double left = field(RegionNumber::Left).value();
    const double top = field(RegionNumber::Top).value();
    if (m_camera.usesEdges())
        return {spanBetween(left, field(RegionNumber::Right).value()),
                spanBetween(top, field(RegionNumber::Bottom).value())};
    return {{left, field(RegionNumber::Width).value()}, {top, field(RegionNumber::Height).value()}};
}

bool AutoRegionView::isWritable(RegionNumber number) const
{
    return !m_isLocked[indexOf(number)];
}

bool AutoRegionView::isRegionWritable() const
{
    const auto numbers = m_camera.numbers();
    return std::all_of(numbers.begin(), numbers.end(), [this](RegionNumber number) {
        return m_camera.has(number) && isWritable(number);
    });
}

void AutoRegionView::showProvisional(const AutoRegion& region)
{
    field(RegionNumber::Top).showProvisional(region.vertical.start);
    field(RegionNumber::Left).showProvisional(region.horizontal.start);
    field(RegionNumber::Right).showProvisional(region.horizontal.end());
    field(RegionNumber::Bottom).showProvisional(region.vertical.end());
    field(RegionNumber::Width).showProvisional(region.horizontal.length);
    field(RegionNumber::Height).showProvisional(region.vertical.length);
}

void AutoRegionView::commit()
{
    for (NumberField& each : m_fields)
        each.commit();
}

void AutoRegionView::load()
{
    for (const RegionNumber number : regionNumbers) {
        if (!m_camera.has(number))
            continue;
        const Reading<double> reading = m_camera.readForField(number);
        field(number).showStep(reading);
        show(number, reading);
    }
    if (m_camera.usesEdges()) {
        loadExtent(RegionNumber::Height, RegionNumber::Top, RegionNumber::Bottom);
        loadExtent(RegionNumber::Width, RegionNumber::Left, RegionNumber::Right);
    } else if (m_camera.usesSizes()) {
        loadFarEdge(RegionNumber::Bottom, RegionNumber::Top, RegionNumber::Height);
        loadFarEdge(RegionNumber::Right, RegionNumber::Left, RegionNumber::Width);
    }
}

void AutoRegionView::show(RegionNumber number, const Reading<double>& reading)
{
    if (reading.isComplete || reading.isWritable)
        m_isLocked[indexOf(number)] = !reading.isWritable;
    field(number).showWhole(reading);
}

void AutoRegionView::loadExtent(RegionNumber size, RegionNumber nearEdge, RegionNumber farEdge)
{
    Reading<double> extent;
    extent.minimum = field(nearEdge).box()->minimum();
    extent.maximum = field(farEdge).box()->maximum();
    extent.value = m_camera.value(farEdge) - m_camera.value(nearEdge);
    field(size).showWhole(extent);
}

// The offset's minimum counts here, not its value; the first refresh shows the edges.
void AutoRegionView::loadFarEdge(RegionNumber farEdge, RegionNumber offset, RegionNumber size)
{
    const double minimum = field(offset).box()->minimum();
    Reading<double> edge;
    edge.minimum = minimum;
    edge.maximum = field(size).box()->maximum() + field(offset).box()->maximum();
    edge.value = m_camera.value(size) + minimum;
    field(farEdge).showWhole(edge);
}

void AutoRegionView::refreshField(RegionNumber number)
{
    if (m_camera.has(number))
        show(number, m_camera.read(number));
}

void AutoRegionView::refresh()
{
    const RegionLimits& limits = m_camera.limits();
    for (const RegionNumber number : m_camera.numbers())
        refreshField(number);
    m_camera.readOrigin();
    if (m_camera.usesEdges()) {
        Reading<double> extent;
        extent.minimum = 0.0;
        extent.maximum = std::numeric_limits<double>::max();
        extent.value = m_camera.region().vertical.length;
        field(RegionNumber::Height).showWhole(extent);
        extent.value = m_camera.region().horizontal.length;
        field(RegionNumber::Width).showWhole(extent);
    } else if (m_camera.usesSizes()) {
        refreshAxis(RegionNumber::Top, RegionNumber::Height, RegionNumber::Bottom, limits.height);
        refreshAxis(RegionNumber::Left, RegionNumber::Width, RegionNumber::Right, limits.width);
    }
}

void AutoRegionView::refreshAxis(RegionNumber offset, RegionNumber size, RegionNumber farEdge,
                                 qint64 limit)
{
    const double position = m_camera.value(offset);
    field(farEdge).showTaken(position + m_camera.value(size));
    NumberField& sizeField = field(size);
    if (sizeField.isHeld())
        sizeField.limitTo(
            std::min(sizeField.box()->maximum(), static_cast<double>(limit) - position));
}

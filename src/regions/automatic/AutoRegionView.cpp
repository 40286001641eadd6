#include "regions/automatic/AutoRegionView.h"

#include <algorithm>
#include <limits>

AutoRegionView::AutoRegionView(AutoRegionCamera& camera, const Boxes& boxes)
    : m_camera(camera)
    , m_fields{NumberField(boxes[0]), NumberField(boxes[1]), NumberField(boxes[2]),
               NumberField(boxes[3]), NumberField(boxes[4]), NumberField(boxes[5])}
{
}

AutoRegion AutoRegionView::shown() const
{
    return m_camera.regionOf([this](RegionNumber number) { return field(number).value(); });
}

bool AutoRegionView::isRegionWritable() const
{
    const auto numbers = m_camera.numbers();
    return std::all_of(numbers.begin(), numbers.end(), [this](RegionNumber number) {
        return m_camera.has(number) && field(number).isWritable();
    });
}

void AutoRegionView::showProvisional(const AutoRegion& region)
{
    const auto show = [this](const AxisNumbers& axis, const Span<double>& span) {
        field(axis.start).showProvisional(span.start);
        field(axis.end).showProvisional(span.end());
        field(axis.size).showProvisional(span.length);
    };
    show(verticalNumbers, region.vertical);
    show(horizontalNumbers, region.horizontal);
}

void AutoRegionView::load()
{
    for (const RegionNumber number : regionNumbers) {
        if (!m_camera.has(number))
            continue;
        const Reading<double> reading = m_camera.readForField(number);
        field(number).showStep(reading);
        field(number).showWhole(reading);
    }
    for (const AxisNumbers& axis : {verticalNumbers, horizontalNumbers}) {
        const double first = field(axis.start).box()->minimum();
        const double last = field(axis.start).box()->maximum();
        if (m_camera.usesEdges())
            showDerived(axis.size, spanBetween(first, field(axis.end).box()->maximum()),
                        m_camera.value(axis.end) - m_camera.value(axis.start));
        else if (m_camera.usesSizes()) // the offset's minimum, until the first refresh
            showDerived(axis.end, spanBetween(first, field(axis.size).box()->maximum() + last),
                        m_camera.value(axis.size) + first);
    }
}

void AutoRegionView::showDerived(RegionNumber number, const Span<double>& range, double value)
{
    Reading<double> reading;
    reading.minimum = range.start;
    reading.maximum = range.end();
    reading.value = value;
    field(number).showWhole(reading);
}

void AutoRegionView::refreshField(RegionNumber number)
{
    if (m_camera.has(number))
        field(number).showWhole(m_camera.read(number));
}

void AutoRegionView::refresh()
{
    for (const RegionNumber number : m_camera.numbers())
        refreshField(number);
    m_camera.readOrigin();
    const auto follow = [this](const AxisNumbers& axis, const Span<double>& span, double limit) {
        NumberField& size = field(axis.size);
        if (m_camera.usesEdges()) {
            showDerived(axis.size, {0.0, std::numeric_limits<double>::max()}, span.length);
        } else if (m_camera.usesSizes()) {
            field(axis.end).showTaken(span.end());
            if (size.isHeld())
                size.limitTo(std::min(size.box()->maximum(), limit - span.start));
        }
    };
    const AutoRegion region = m_camera.region();
    follow(verticalNumbers, region.vertical, m_camera.limits().height());
    follow(horizontalNumbers, region.horizontal, m_camera.limits().width());
}

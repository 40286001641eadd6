#include "regions/automatic/AutoRegionView.h"

#include "page/NumberField.h"

#include <QDoubleSpinBox>

#include <algorithm>
#include <limits>
#include <utility>

AutoRegionView::AutoRegionView(AutoRegionCamera& camera, const Fields& fields, HeldQuery isHeld)
    : m_camera(camera)
    , m_fields(fields)
    , m_isHeld(std::move(isHeld))
{
}

QDoubleSpinBox* AutoRegionView::field(RegionNumber number) const
{
    return m_fields[static_cast<std::size_t>(number)];
}

AutoRegionFields AutoRegionView::values() const
{
    AutoRegionFields values;
    values.top = field(RegionNumber::Top)->value();
    values.left = field(RegionNumber::Left)->value();
    values.right = field(RegionNumber::Right)->value();
    values.bottom = field(RegionNumber::Bottom)->value();
    values.width = field(RegionNumber::Width)->value();
    values.height = field(RegionNumber::Height)->value();
    return values;
}

DspEdges AutoRegionView::edges() const
{
    const AutoRegionFields shown = values();
    return {shown.left, shown.top, shown.right, shown.bottom};
}

void AutoRegionView::show(const AutoRegionFields& values)
{
    showClamped(field(RegionNumber::Top), values.top);
    showClamped(field(RegionNumber::Left), values.left);
    showClamped(field(RegionNumber::Right), values.right);
    showClamped(field(RegionNumber::Bottom), values.bottom);
    showClamped(field(RegionNumber::Width), values.width);
    showClamped(field(RegionNumber::Height), values.height);
}

void AutoRegionView::load()
{
    for (const RegionNumber number :
         {RegionNumber::Top, RegionNumber::Left, RegionNumber::Right, RegionNumber::Bottom,
          RegionNumber::Width, RegionNumber::Height})
        loadField(number);

    const auto deriveField
        = [this](RegionNumber derived, double minimum, double maximum, double value) {
              showRangeAndValue(field(derived), minimum, maximum, value);
          };
    const auto top = m_camera.state(RegionNumber::Top);
    const auto left = m_camera.state(RegionNumber::Left);
    if (m_camera.usesEdges()) {
        const auto bottom = m_camera.state(RegionNumber::Bottom);
        const auto right = m_camera.state(RegionNumber::Right);
        deriveField(RegionNumber::Height, top.minimum, bottom.maximum, bottom.value - top.value);
        deriveField(RegionNumber::Width, left.minimum, right.maximum, right.value - left.value);
    } else if (m_camera.usesSizes()) {
        const auto height = m_camera.state(RegionNumber::Height);
        const auto width = m_camera.state(RegionNumber::Width);
        // The offset's minimum counts here, not its value; the first refresh shows the edges.
        deriveField(RegionNumber::Bottom, top.minimum, height.maximum + top.maximum,
                    height.value + top.minimum);
        deriveField(RegionNumber::Right, left.minimum, width.maximum + left.maximum,
                    width.value + left.minimum);
    }
}

void AutoRegionView::loadField(RegionNumber number)
{
    if (!m_camera.has(number))
        return;
    const auto state = m_camera.state(number);
    field(number)->setSingleStep(state.increment > 0.0 ? state.increment : 1.0);
    showRangeAndValue(field(number), state.minimum, state.maximum, state.value);
}

AutoRegionCamera::State AutoRegionView::refreshField(RegionNumber number)
{
    const auto state = m_camera.range(number);
    showRangeAndValue(field(number), state.minimum, state.maximum, state.value);
    return state;
}

void AutoRegionView::refresh(const RegionLimits& limits)
{
    if (m_camera.usesEdges()) {
        for (const RegionNumber edge :
             {RegionNumber::Top, RegionNumber::Left, RegionNumber::Right, RegionNumber::Bottom})
            refreshField(edge);
        const DspEdges camera = m_camera.edges();
        refreshExtent(RegionNumber::Height, camera.bottom - camera.top);
        refreshExtent(RegionNumber::Width, camera.right - camera.left);
    } else if (m_camera.usesSizes()) {
        refreshAxis(RegionNumber::Top, RegionNumber::Height, RegionNumber::Bottom, limits.height);
        refreshAxis(RegionNumber::Left, RegionNumber::Width, RegionNumber::Right, limits.width);
    }
}

void AutoRegionView::refreshExtent(RegionNumber size, double extent)
{
    showRangeAndValue(field(size), 0.0, std::numeric_limits<double>::max(), extent);
}

void AutoRegionView::refreshAxis(RegionNumber offset, RegionNumber size, RegionNumber farEdge,
                                 qint64 limit)
{
    const double position = refreshField(offset).value;
    const double extent = refreshField(size).value;
    showValue(field(farEdge), position + extent);
    if (m_isHeld(size))
        setMaximumSilently(field(size),
                           std::min(field(size)->maximum(), static_cast<double>(limit) - position));
}

#include "regions/automatic/AutoRegionWriter.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "page/NumberField.h"
#include "regions/automatic/AutoRegionView.h"
#include "regions/automatic/EdgeSpan.h"
#include "regions/image/RegionPresets.h"
#include "regions/image/RegionSnapping.h"

#include <QDoubleSpinBox>

#include <algorithm>

AutoRegionWriter::AutoRegionWriter(AutoRegionCamera& camera, AutoRegionView& editor)
    : m_camera(camera)
    , m_editor(editor)
{
}

void AutoRegionWriter::write(RegionNumber number, double value)
{
    if (m_camera.has(number))
        showValue(m_editor.field(number), m_camera.write(number, value));
}

// Drawn regions

bool AutoRegionWriter::writeDrawn(const SensorRegion& region, const RegionLimits& limits)
{
    m_editor.show(fieldsForRegion(region, m_camera.origin()));
    if (!m_camera.usesEdges())
        return m_camera.usesSizes() && writeSizes(region, limits);
    writeEdges(region, limits);
    return false;
}

void AutoRegionWriter::writeEdges(const SensorRegion& region, const RegionLimits& limits)
{
    writeAxis(RegionNumber::Left, RegionNumber::Right, region.left, region.width, limits.width);
    writeAxis(RegionNumber::Top, RegionNumber::Bottom, region.top, region.height, limits.height);
}

void AutoRegionWriter::writeAxis(RegionNumber nearEdge, RegionNumber farEdge, double position,
                                 double extent, qint64 limit)
{
    const double currentNear = m_camera.range(nearEdge).value;
    const double currentFar = m_camera.range(farEdge).value;
    const EdgeSpan wanted = edgesForExtent(position, extent, static_cast<double>(limit),
                                           m_editor.field(nearEdge)->singleStep());
    if (writesFarEdgeFirst(currentNear, currentFar, wanted.nearEdge, wanted.farEdge)) {
        write(farEdge, wanted.farEdge);
        write(nearEdge, wanted.nearEdge);
    } else {
        write(nearEdge, wanted.nearEdge);
        write(farEdge, wanted.farEdge);
    }
}

bool AutoRegionWriter::writeSizes(const SensorRegion& region, const RegionLimits& limits)
{
    const QPointF origin = m_camera.origin();
    const auto snapped = [this](RegionNumber offset, int value) {
        const QDoubleSpinBox* const field = m_editor.field(offset);
        return snappedUp(value, {field->minimum(), field->singleStep()});
    };
    const double left = snapped(RegionNumber::Left, region.left);
    const double top = snapped(RegionNumber::Top, region.top);
    const double roomRight = static_cast<double>(limits.width) - left;
    const double roomBelow = static_cast<double>(limits.height) - top;
    setMaximumSilently(m_editor.field(RegionNumber::Height), roomBelow);
    setMaximumSilently(m_editor.field(RegionNumber::Width), roomRight);

    write(RegionNumber::Left, origin.x() + left);
    write(RegionNumber::Top, origin.y() + top);
    write(RegionNumber::Height, std::min<double>(region.height, roomBelow));
    write(RegionNumber::Width, std::min<double>(region.width, roomRight));
    settleOffset(RegionNumber::Left, origin.x() + left);
    settleOffset(RegionNumber::Top, origin.y() + top);
    return roomRight > 0.0 && roomBelow > 0.0;
}

// A camera that bounds offset and size by each other takes some offsets only beside the new size.
void AutoRegionWriter::settleOffset(RegionNumber offset, double wanted)
{
    if (m_camera.usesSizes() && !m_camera.usesEdges()
        && toInt64(m_camera.range(offset).value)
            != toInt64(onGrid(wanted, m_editor.field(offset)->singleStep())))
        write(offset, wanted);
}

// Presets

void AutoRegionWriter::setFullArea(const RegionLimits& limits)
{
    const RegionLimits current = m_camera.limits();
    growImage(FeatureNames::height, current.height, limits.height);
    growImage(FeatureNames::width, current.width, limits.width);
    const QPointF origin = m_camera.origin();
    setSizeMaximum(RegionNumber::Width, origin.x() + static_cast<double>(current.width));
    setSizeMaximum(RegionNumber::Height, origin.y() + static_cast<double>(current.height));
}

void AutoRegionWriter::growImage(const QString& name, qint64 current, qint64 former)
{
    // Where size and offset bound each other a larger limit may only tell of a smaller offset; the
    // image must not be cut to it.
    const auto size = static_cast<double>(current);
    if (current > former && !(m_camera.isAutoMode() && size < m_camera.value(name)))
        m_camera.write(name, size);
}

// A size that is cut is written: the field emits.
void AutoRegionWriter::setSizeMaximum(RegionNumber size, double maximum)
{
    QDoubleSpinBox* const field = m_editor.field(size);
    field->setMaximum(std::max(field->minimum(), maximum));
}

void AutoRegionWriter::presetFull(const RegionLimits& limits)
{
    m_editor.refresh(limits); // the fields emit what differs from the camera
    setFullArea(limits);
    const double left = m_editor.field(RegionNumber::Left)->minimum();
    const double top = m_editor.field(RegionNumber::Top)->minimum();
    const auto width = static_cast<double>(limits.width);
    const auto height = static_cast<double>(limits.height);
    makeRoom({left, top, width - left, height - top});
    setEdge(RegionNumber::Left, left);
    setEdge(RegionNumber::Top, top);
    m_editor.field(RegionNumber::Height)->setValue(height);
    m_editor.field(RegionNumber::Width)->setValue(width);
    setEdge(RegionNumber::Right, width - left);
    setEdge(RegionNumber::Bottom, height - top);
}

void AutoRegionWriter::presetCentred(const RegionLimits& limits, double factor)
{
    m_editor.refresh(limits); // the fields emit what differs from the camera
    setFullArea(limits);
    const auto [position, size] = centredAutoRegion(sizeOf(limits), factor, m_camera.origin());
    makeRoom(
        {position.x(), position.y(), position.x() + size.width(), position.y() + size.height()});
    setEdge(RegionNumber::Left, position.x());
    setEdge(RegionNumber::Top, position.y());
    write(RegionNumber::Left, position.x());
    write(RegionNumber::Top, position.y());
    m_editor.field(RegionNumber::Height)->setValue(size.height());
    m_editor.field(RegionNumber::Width)->setValue(size.width());
    settleOffset(RegionNumber::Left, position.x());
    settleOffset(RegionNumber::Top, position.y());
    const AutoRegionFields shown = m_editor.values();
    setEdge(RegionNumber::Right, shown.width + shown.left);
    setEdge(RegionNumber::Bottom, shown.height + shown.top);
}

// Near edges are written first; one that would reach the far edge has to wait for it.
void AutoRegionWriter::makeRoom(const DspEdges& wanted)
{
    if (!m_camera.usesEdges())
        return;
    const DspEdges current = m_camera.edges();
    if (wanted.left >= current.right)
        setEdge(RegionNumber::Right, wanted.right);
    if (wanted.top >= current.bottom)
        setEdge(RegionNumber::Bottom, wanted.bottom);
}

// Cameras may bound edges by each other; the field takes what the camera takes by now.
void AutoRegionWriter::setEdge(RegionNumber number, double value)
{
    if (m_camera.usesEdges() && m_camera.has(number))
        m_editor.refreshField(number);
    m_editor.field(number)->setValue(value);
}

#include "regions/automatic/AutoRegionWriter.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "regions/automatic/AutoRegionView.h"

#include <QDoubleSpinBox>

#include <algorithm>

AutoRegionWriter::AutoRegionWriter(AutoRegionCamera& camera, AutoRegionView& view)
    : m_camera(camera)
    , m_view(view)
{
}

void AutoRegionWriter::write(RegionNumber number, double value)
{
    if (!m_camera.has(number))
        return;
    m_view.field(number).showTaken(m_camera.write(number, value).value_or(m_camera.value(number)));
}

// Drawn regions

bool AutoRegionWriter::writeDrawn(const QRect& region)
{
    m_camera.readOrigin();
    m_view.showProvisional(fromLabel(region, m_camera.origin()));
    if (!m_camera.usesEdges())
        return m_camera.usesSizes() && writeSizes(region);
    writeEdges(region);
    return false;
}

void AutoRegionWriter::writeEdges(const QRect& region)
{
    const AutoRegion drawn = fromLabel(region, {});
    writeAxis(RegionNumber::Left, RegionNumber::Right, drawn.horizontal, m_camera.limits().width);
    writeAxis(RegionNumber::Top, RegionNumber::Bottom, drawn.vertical, m_camera.limits().height);
}

void AutoRegionWriter::writeAxis(RegionNumber nearEdge, RegionNumber farEdge,
                                 const Span<double>& drawn, qint64 limit)
{
    const auto current = spanBetween(m_camera.readValue(nearEdge), m_camera.readValue(farEdge));
    const Span<double> wanted
        = keptApart(drawn, static_cast<double>(limit), m_view.field(nearEdge).grid().step);
    if (writesFarEdgeFirst(current, wanted)) {
        write(farEdge, wanted.end());
        write(nearEdge, wanted.start);
    } else {
        write(nearEdge, wanted.start);
        write(farEdge, wanted.end());
    }
}

bool AutoRegionWriter::writeSizes(const QRect& region)
{
    const QPointF origin = m_camera.origin();
    const auto snapped = [this](RegionNumber offset, int value) {
        return snappedUp(value, m_view.field(offset).grid());
    };
    const double left = snapped(RegionNumber::Left, region.x());
    const double top = snapped(RegionNumber::Top, region.y());
    const double roomRight = static_cast<double>(m_camera.limits().width) - left;
    const double roomBelow = static_cast<double>(m_camera.limits().height) - top;
    m_view.field(RegionNumber::Height).limitTo(roomBelow);
    m_view.field(RegionNumber::Width).limitTo(roomRight);

    write(RegionNumber::Left, origin.x() + left);
    write(RegionNumber::Top, origin.y() + top);
    write(RegionNumber::Height, std::min<double>(region.height(), roomBelow));
    write(RegionNumber::Width, std::min<double>(region.width(), roomRight));
    settleOffset(RegionNumber::Left, origin.x() + left);
    settleOffset(RegionNumber::Top, origin.y() + top);
    return roomRight > 0.0 && roomBelow > 0.0;
}

// A camera that bounds offset and size by each other takes some offsets only beside the new size.
void AutoRegionWriter::settleOffset(RegionNumber offset, double wanted)
{
    if (m_camera.usesSizes() && !m_camera.usesEdges()
        && toInt64(m_camera.readValue(offset))
            != toInt64(onGrid(wanted, m_view.field(offset).grid().step)))
        write(offset, wanted);
}

// Presets

void AutoRegionWriter::setFullArea()
{
    const RegionLimits current = m_camera.readLimits().value_or(m_camera.limits());
    growImage(FeatureNames::height, current.height, m_camera.limits().height);
    growImage(FeatureNames::width, current.width, m_camera.limits().width);
    m_camera.readOrigin();
    const QPointF origin = m_camera.origin();
    setSizeMaximum(RegionNumber::Width, origin.x() + static_cast<double>(current.width));
    setSizeMaximum(RegionNumber::Height, origin.y() + static_cast<double>(current.height));
}

void AutoRegionWriter::growImage(const QString& name, qint64 current, qint64 former)
{
    // Where size and offset bound each other a larger limit may only tell of a smaller offset; the
    // image must not be cut to it.
    const auto size = static_cast<double>(current);
    if (current > former && !(m_camera.isAutoMode() && size < m_camera.readValue(name)))
        m_camera.write(name, size);
}

// A size that is cut is written: the field emits.
void AutoRegionWriter::setSizeMaximum(RegionNumber size, double maximum)
{
    QDoubleSpinBox* const field = m_view.field(size).box();
    field->setMaximum(std::max(field->minimum(), maximum));
}

void AutoRegionWriter::presetFull()
{
    m_view.refresh(); // the fields emit what differs from the camera
    setFullArea();
    const double left = m_view.field(RegionNumber::Left).grid().minimum;
    const double top = m_view.field(RegionNumber::Top).grid().minimum;
    const auto width = static_cast<double>(m_camera.limits().width);
    const auto height = static_cast<double>(m_camera.limits().height);
    makeRoom({spanBetween(left, width - left), spanBetween(top, height - top)});
    setEdge(RegionNumber::Left, left);
    setEdge(RegionNumber::Top, top);
    m_view.field(RegionNumber::Height).box()->setValue(height);
    m_view.field(RegionNumber::Width).box()->setValue(width);
    setEdge(RegionNumber::Right, width - left);
    setEdge(RegionNumber::Bottom, height - top);
}

void AutoRegionWriter::presetCentred(double factor)
{
    m_view.refresh(); // the fields emit what differs from the camera
    setFullArea();
    const QPointF origin = m_camera.origin();
    AutoRegion wanted{centredSpan(static_cast<double>(m_camera.limits().width), factor),
                      centredSpan(static_cast<double>(m_camera.limits().height), factor)};
    wanted.horizontal.start += origin.x();
    wanted.vertical.start += origin.y();
    makeRoom(wanted);
    setEdge(RegionNumber::Left, wanted.horizontal.start);
    setEdge(RegionNumber::Top, wanted.vertical.start);
    write(RegionNumber::Left, wanted.horizontal.start);
    write(RegionNumber::Top, wanted.vertical.start);
    m_view.field(RegionNumber::Height).box()->setValue(wanted.vertical.length);
    m_view.field(RegionNumber::Width).box()->setValue(wanted.horizontal.length);
    settleOffset(RegionNumber::Left, wanted.horizontal.start);
    settleOffset(RegionNumber::Top, wanted.vertical.start);
    const auto shown = [this](RegionNumber number) { return m_view.field(number).value(); };
    setEdge(RegionNumber::Right, shown(RegionNumber::Width) + shown(RegionNumber::Left));
    setEdge(RegionNumber::Bottom, shown(RegionNumber::Height) + shown(RegionNumber::Top));
}

// Near edges are written first; one that would reach the far edge has to wait for it.
void AutoRegionWriter::makeRoom(const AutoRegion& wanted)
{
    if (!m_camera.usesEdges())
        return;
    const AutoRegion current = m_camera.region();
    if (wanted.horizontal.start >= current.horizontal.end())
        setEdge(RegionNumber::Right, wanted.horizontal.end());
    if (wanted.vertical.start >= current.vertical.end())
        setEdge(RegionNumber::Bottom, wanted.vertical.end());
}

// Cameras may bound edges by each other; the field takes what the camera takes by now.
void AutoRegionWriter::setEdge(RegionNumber number, double value)
{
    if (m_camera.usesEdges() && m_camera.has(number))
        m_view.refreshField(number);
    m_view.field(number).box()->setValue(value);
}

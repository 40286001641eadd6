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
    if (m_camera.has(number))
        m_view.field(number).showTaken(m_camera.write(number, value));
}

bool AutoRegionWriter::writeDrawn(const QRect& region)
{
    m_camera.readOrigin();
    m_view.showProvisional(fromLabel(region, m_camera.origin()));
    if (!m_camera.usesEdges())
        return m_camera.usesSizes() && writeSizes(region);
    const AutoRegion drawn = fromLabel(region, {});
    writeEdges(horizontalNumbers, drawn.horizontal, m_camera.limits().width());
    writeEdges(verticalNumbers, drawn.vertical, m_camera.limits().height());
    return false;
}

void AutoRegionWriter::writeEdges(const AxisNumbers& axis, const Span<double>& drawn, double limit)
{
    const auto current = spanBetween(m_camera.readValue(axis.start), m_camera.readValue(axis.end));
    const Span<double> wanted = keptApart(drawn, limit, m_view.field(axis.start).grid().step);
    if (writesFarEdgeFirst(current, wanted)) {
        write(axis.end, wanted.end());
        write(axis.start, wanted.start);
    } else {
        write(axis.start, wanted.start);
        write(axis.end, wanted.end());
    }
}

bool AutoRegionWriter::writeSizes(const QRect& region)
{
    const QPointF origin = m_camera.origin();
    const double left = snappedUp(region.x(), m_view.field(RegionNumber::Left).grid());
    const double top = snappedUp(region.y(), m_view.field(RegionNumber::Top).grid());
    const double roomRight = m_camera.limits().width() - left;
    const double roomBelow = m_camera.limits().height() - top;
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

void AutoRegionWriter::writeFullArea()
{
    const QSizeF current = m_camera.readLimits().value_or(m_camera.limits());
    growImage(FeatureNames::height, current.height(), m_camera.limits().height());
    growImage(FeatureNames::width, current.width(), m_camera.limits().width());
    m_camera.readOrigin();
    // A size that is cut is written: the field emits.
    const auto limitTo = [this](RegionNumber size, double maximum) {
        QDoubleSpinBox* const field = m_view.field(size).box();
        field->setMaximum(std::max(field->minimum(), maximum));
    };
    limitTo(RegionNumber::Width, m_camera.origin().x() + current.width());
    limitTo(RegionNumber::Height, m_camera.origin().y() + current.height());
}

// A larger limit may only tell of a smaller offset; the image must not be cut to it.
void AutoRegionWriter::growImage(const QString& name, double current, double former)
{
    if (current > former && !(m_camera.isAutoMode() && current < m_camera.readValue(name)))
        m_camera.writeImageSize(name, current);
}

void AutoRegionWriter::presetFull()
{
    const double left = m_view.field(RegionNumber::Left).grid().minimum;
    const double top = m_view.field(RegionNumber::Top).grid().minimum;
    const QSizeF limits = m_camera.limits();
    setStart(horizontalNumbers, spanBetween(left, limits.width() - left));
    setStart(verticalNumbers, spanBetween(top, limits.height() - top));
    m_view.field(RegionNumber::Height).box()->setValue(limits.height());
    m_view.field(RegionNumber::Width).box()->setValue(limits.width());
    setEdge(RegionNumber::Right, limits.width() - left);
    setEdge(RegionNumber::Bottom, limits.height() - top);
}

void AutoRegionWriter::presetCentred(double factor)
{
    AutoRegion wanted{centredSpan(m_camera.limits().width(), factor),
                      centredSpan(m_camera.limits().height(), factor)};
    wanted.horizontal.start += m_camera.origin().x();
    wanted.vertical.start += m_camera.origin().y();
    setStart(horizontalNumbers, wanted.horizontal);
    setStart(verticalNumbers, wanted.vertical);
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
void AutoRegionWriter::setStart(const AxisNumbers& axis, const Span<double>& wanted)
{
    if (m_camera.usesEdges() && wanted.start >= m_camera.value(axis.end))
        setEdge(axis.end, wanted.end());
    setEdge(axis.start, wanted.start);
}

// Cameras may bound edges by each other; the field takes what the camera takes by now.
void AutoRegionWriter::setEdge(RegionNumber number, double value)
{
    if (m_camera.usesEdges() && m_camera.has(number))
        m_view.refreshField(number);
    m_view.field(number).box()->setValue(value);
}

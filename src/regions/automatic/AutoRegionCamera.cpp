#include "regions/automatic/AutoRegionCamera.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "features/SdkValues.h"
#include "sensor/PixelRect.h"

#include <QCoreApplication>

#include <algorithm>

namespace Name = FeatureNames;

QSize sizeOf(const RegionLimits& limits)
{
    return {toInt(static_cast<double>(limits.width)), toInt(static_cast<double>(limits.height))};
}

AutoRegionCamera::AutoRegionCamera(FeatureManager& manager)
    : m_manager(manager)
    , m_names{manager.GetExistingName({Name::dspTop, Name::aoiOffsetY, Name::autoModeOffsetY}),
              manager.GetExistingName({Name::dspLeft, Name::aoiOffsetX, Name::autoModeOffsetX}),
              manager.GetExistingName({Name::dspRight}),
              manager.GetExistingName({Name::dspBottom}),
              manager.GetExistingName({Name::aoiWidth, Name::autoModeWidth}),
              manager.GetExistingName({Name::aoiHeight, Name::autoModeHeight})}
    , m_usesEdges(manager.HasFeature(Name::dspTop))
    , m_usesSizes(manager.HasFeature(Name::aoiHeight, Name::autoModeHeight))
{
}

bool AutoRegionCamera::hasAutoRegion(FeatureManager& manager)
{
    return manager.HasFeature(Name::aoiOffsetX, Name::dspLeft)
        || manager.HasFeature(Name::autoModeHeight);
}

bool AutoRegionCamera::has(const QString& name) const
{
    return m_manager.HasFeature(name);
}

bool AutoRegionCamera::isRegionWritable() const
{
    if (m_usesEdges)
        return m_manager.IsWritable(Name::dspLeft) && m_manager.IsWritable(Name::dspTop)
            && m_manager.IsWritable(Name::dspRight) && m_manager.IsWritable(Name::dspBottom);
    return m_manager.IsWritable(Name::aoiOffsetX, Name::autoModeOffsetX)
        && m_manager.IsWritable(Name::aoiOffsetY, Name::autoModeOffsetY)
        && m_manager.IsWritable(Name::aoiWidth, Name::autoModeWidth)
        && m_manager.IsWritable(Name::aoiHeight, Name::autoModeHeight);
}

const QString& AutoRegionCamera::nameOf(RegionNumber number) const
{
    return m_names[static_cast<std::size_t>(number)];
}

AutoRegionCamera::State AutoRegionCamera::state(RegionNumber number) const
{
    State state;
    if (has(number))
        state.value = m_manager.GetValueRange(nameOf(number), state.minimum, state.maximum,
                                              state.increment);
    return state;
}

AutoRegionCamera::State AutoRegionCamera::range(RegionNumber number) const
{
    return rangeOf(nameOf(number));
}

double AutoRegionCamera::write(RegionNumber number, double value)
{
    return has(number) ? m_manager.SetValue(nameOf(number), value) : value;
}

DspEdges AutoRegionCamera::edges() const
{
    return {value(Name::dspLeft), value(Name::dspTop), value(Name::dspRight),
            value(Name::dspBottom)};
}

AutoRegionFields AutoRegionCamera::offsetAndSize() const
{
    AutoRegionFields fields;
    fields.top = range(RegionNumber::Top).value;
    fields.left = range(RegionNumber::Left).value;
    fields.width = range(RegionNumber::Width).value;
    fields.height = range(RegionNumber::Height).value;
    fields.right = fields.left + fields.width;
    fields.bottom = fields.top + fields.height;
    return fields;
}

bool AutoRegionCamera::isAutoMode() const
{
    return nameOf(RegionNumber::Left) == Name::autoModeOffsetX;
}

QString AutoRegionCamera::sizeProblem(const RegionLimits& limits) const
{
    const QString region = has(Name::aoiHeight) ? QStringLiteral("AOI") : QStringLiteral("ROI");
    const QPointF start = origin();
    if (exceedsLimit(range(RegionNumber::Top).value, start.y(), range(RegionNumber::Height).value,
                     limits.height))
        return QCoreApplication::translate("AutoROIWidget",
                                           "Invalid settings:\nHeight + OffsetY > %1 Height")
            .arg(region);
    if (exceedsLimit(range(RegionNumber::Left).value, start.x(), range(RegionNumber::Width).value,
                     limits.width))
        return QCoreApplication::translate("AutoROIWidget",
                                           "Invalid settings:\nWidth + OffsetX > %1 Width")
            .arg(region);
    return {};
}

void AutoRegionCamera::write(const QString& name, double value)
{
    m_manager.SetValue(name, value);
}

double AutoRegionCamera::value(const QString& name, const QString& alternative) const
{
    return m_manager.HasFeature(name, alternative) ? m_manager.GetValue(name, alternative) : 0.0;
}

AutoRegionCamera::State AutoRegionCamera::rangeOf(const QString& name) const
{
    State state;
    if (!name.isEmpty() && has(name))
        state.value = m_manager.GetValueLimits(name, state.minimum, state.maximum);
    return state;
}

QPointF AutoRegionCamera::origin() const
{
    return {value(Name::autoModeOffsetX), value(Name::autoModeOffsetY)};
}

RegionLimits AutoRegionCamera::limits() const
{
    RegionLimits limits;
    if (has(Name::aoiHeight))
        limits.height
            = aoiHeightLimit(value(Name::height), m_manager.GetIncrement(Name::aoiHeight),
                             rangeOf(Name::height).minimum, rangeOf(Name::aoiOffsetX).minimum);
    else
        limits.height = toInt64(has(Name::autoModeHeight) ? rangeOf(Name::autoModeHeight).maximum
                                                          : value(Name::height));
    if (has(Name::aoiWidth))
        limits.width = aoiWidthLimit(value(Name::width), m_manager.GetIncrement(Name::aoiWidth),
                                     rangeOf(Name::aoiOffsetY).minimum);
    else
        limits.width = toInt64(has(Name::autoModeWidth) ? rangeOf(Name::autoModeWidth).maximum
                                                        : value(Name::width));
    return limits;
}

QSizeF AutoRegionCamera::imageSize() const
{
    return {value(Name::width), value(Name::height)};
}

QSize AutoRegionCamera::sensorSize() const
{
    return {sensorExtent(Name::sensorWidth, Name::widthMax, Name::width, Name::offsetX),
            sensorExtent(Name::sensorHeight, Name::heightMax, Name::height, Name::offsetY)};
}

int AutoRegionCamera::sensorExtent(const QString& sensor, const QString& maximum,
                                   const QString& size, const QString& offset) const
{
    if (has(sensor) && has(maximum))
        return toInt(std::min(value(sensor), value(maximum)));
    if (m_manager.HasFeature(sensor, maximum))
        return toInt(value(sensor, maximum));
    return toInt(rangeOf(size).maximum + value(offset));
}

QRect AutoRegionCamera::imageRegion(bool hasImage)
{
    const bool isMultiple = value(Name::multipleRegionEnable, Name::multipleRegionsEnable) != 0.0;
    if (!isMultiple || !hasImage)
        return truncatedRect(value(Name::offsetX), value(Name::offsetY), value(Name::width),
                             value(Name::height));
    selectFirstRegion();
    return truncatedRect(value(Name::subRegionOffsetX, Name::offsetX),
                         value(Name::subRegionOffsetY), value(Name::subRegionWidth, Name::width),
                         value(Name::subRegionHeight));
}

void AutoRegionCamera::selectFirstRegion()
{
    const QString selector = Name::subRegionSelector;
    if (m_manager.GetDataType(selector) == Sdk::enumerationType)
        m_manager.SetStringValue(selector, QStringLiteral("Region0"));
    else
        m_manager.SetValue(selector, 0.0);
}

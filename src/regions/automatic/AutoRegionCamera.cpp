#include "regions/automatic/AutoRegionCamera.h"

#include "features/FeatureNames.h"
#include "features/FeatureManager.h"
#include "features/NumberConversion.h"
#include "features/SdkValues.h"
#include "sensor/PixelRect.h"

#include <QCoreApplication>

#include <algorithm>

using namespace FeatureNames;

QSize sizeOf(const RegionLimits& limits)
{
    return {toInt(static_cast<double>(limits.width)), toInt(static_cast<double>(limits.height))};
}

AutoRegionCamera::AutoRegionCamera(FeatureManager& manager)
    : m_manager(manager)
    , m_names{manager.GetExistingName({dspTop, aoiOffsetY, autoModeOffsetY}),
              manager.GetExistingName({dspLeft, aoiOffsetX, autoModeOffsetX}),
              manager.GetExistingName({dspRight}),
              manager.GetExistingName({dspBottom}),
              manager.GetExistingName({aoiWidth, autoModeWidth}),
              manager.GetExistingName({aoiHeight, autoModeHeight})}
    , m_usesEdges(manager.HasFeature(dspTop))
    , m_usesSizes(manager.HasFeature(aoiHeight, autoModeHeight))
{
}

bool AutoRegionCamera::hasAutoRegion(FeatureManager& manager)
{
    return manager.HasFeature(aoiOffsetX, dspLeft) || manager.HasFeature(autoModeHeight);
}

bool AutoRegionCamera::has(const QString& name) const
{
    return m_manager.HasFeature(name);
}

bool AutoRegionCamera::isRegionWritable() const
{
    if (m_usesEdges)
        return m_manager.IsWritable(dspLeft) && m_manager.IsWritable(dspTop)
            && m_manager.IsWritable(dspRight) && m_manager.IsWritable(dspBottom);
    return m_manager.IsWritable(aoiOffsetX, autoModeOffsetX)
        && m_manager.IsWritable(aoiOffsetY, autoModeOffsetY)
        && m_manager.IsWritable(aoiWidth, autoModeWidth)
        && m_manager.IsWritable(aoiHeight, autoModeHeight);
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
    return {value(dspLeft), value(dspTop), value(dspRight), value(dspBottom)};
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
    return nameOf(RegionNumber::Left) == autoModeOffsetX;
}

QString AutoRegionCamera::sizeProblem(const RegionLimits& limits) const
{
    const QString region = has(aoiHeight) ? QStringLiteral("AOI") : QStringLiteral("ROI");
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
    return {value(autoModeOffsetX), value(autoModeOffsetY)};
}

RegionLimits AutoRegionCamera::limits() const
{
    RegionLimits limits;
    if (has(aoiHeight))
        limits.height = aoiHeightLimit(value(imageHeight), m_manager.GetIncrement(aoiHeight),
                                       rangeOf(imageHeight).minimum, rangeOf(aoiOffsetX).minimum);
    else
        limits.height
            = toInt64(has(autoModeHeight) ? rangeOf(autoModeHeight).maximum : value(imageHeight));
    if (has(aoiWidth))
        limits.width = aoiWidthLimit(value(imageWidth), m_manager.GetIncrement(aoiWidth),
                                     rangeOf(aoiOffsetY).minimum);
    else
        limits.width
            = toInt64(has(autoModeWidth) ? rangeOf(autoModeWidth).maximum : value(imageWidth));
    return limits;
}

QSizeF AutoRegionCamera::imageSize() const
{
    return {value(imageWidth), value(imageHeight)};
}

QSize AutoRegionCamera::sensorSize() const
{
    return {sensorExtent(QStringLiteral("SensorWidth"), QStringLiteral("WidthMax"), imageWidth,
                         QStringLiteral("OffsetX")),
            sensorExtent(QStringLiteral("SensorHeight"), QStringLiteral("HeightMax"), imageHeight,
                         QStringLiteral("OffsetY"))};
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
    const bool isMultiple
        = value(QStringLiteral("MultipleRegionEnable"), QStringLiteral("MultipleRegionsEnable"))
        != 0.0;
    if (!isMultiple || !hasImage)
        return truncatedRect(value(QStringLiteral("OffsetX")), value(QStringLiteral("OffsetY")),
                             value(imageWidth), value(imageHeight));
    selectFirstRegion();
    return truncatedRect(value(QStringLiteral("SubRegionOffsetX"), QStringLiteral("OffsetX")),
                         value(QStringLiteral("SubRegionOffsetY")),
                         value(QStringLiteral("SubRegionWidth"), imageWidth),
                         value(QStringLiteral("SubRegionHeight")));
}

void AutoRegionCamera::selectFirstRegion()
{
    const QString selector = QStringLiteral("SubRegionSelector");
    if (m_manager.GetDataType(selector) == Sdk::enumerationType)
        m_manager.SetStringValue(selector, QStringLiteral("Region0"));
    else
        m_manager.SetValue(selector, 0.0);
}

#include "regions/automatic/AutoRegionCamera.h"

#include "features/NumberConversion.h"
#include "features/SdkValues.h"
#include "sensor/PixelRect.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Name = FeatureNames;

AutoRegionCamera::AutoRegionCamera(FeatureManager& manager)
    : m_manager(manager)
    , m_featureNames(manager.GetFeatureNames())
{
    const auto first = [this](std::initializer_list<QString> candidates) {
        const auto found = std::find_if(candidates.begin(), candidates.end(),
                                        [&](const QString& name) { return has(name); });
        return found == candidates.end() ? QString() : *found;
    };
    m_names = {first({Name::dspTop, Name::aoiOffsetY, Name::autoModeOffsetY}),
               first({Name::dspLeft, Name::aoiOffsetX, Name::autoModeOffsetX}),
               first({Name::dspRight}),
               first({Name::dspBottom}),
               first({Name::aoiWidth, Name::autoModeWidth}),
               first({Name::aoiHeight, Name::autoModeHeight})};
    m_usesEdges = nameOf(RegionNumber::Top) == Name::dspTop;
    m_usesSizes = has(RegionNumber::Height);
    for (const QString& name : {Name::autoModeOffsetX, Name::autoModeOffsetY})
        if (has(name))
            m_originNames << name;
}

bool AutoRegionCamera::hasAutoRegion(FeatureManager& manager)
{
    return manager.HasFeature(Name::aoiOffsetX, Name::dspLeft)
        || manager.HasFeature(Name::autoModeHeight);
}

std::vector<RegionNumber> AutoRegionCamera::numbers() const
{
    if (m_usesEdges)
        return {RegionNumber::Top, RegionNumber::Left, RegionNumber::Right, RegionNumber::Bottom};
    return {RegionNumber::Top, RegionNumber::Left, RegionNumber::Width, RegionNumber::Height};
}

Reading<double> AutoRegionCamera::readForField(RegionNumber number)
{
    const QString& name = nameOf(number);
    return noted(name, m_manager.Read(name).fieldNumber());
}

Reading<double> AutoRegionCamera::noted(const QString& name, const Reading<double>& reading)
{
    if (reading.value)
        m_values[name] = *reading.value;
    if (!reading.isComplete)
        m_untold << name;
    return reading;
}

double AutoRegionCamera::readValue(const QString& name, const QString& alternative)
{
    const auto reading = m_manager.Read(name, alternative).number(FeatureReader::Value);
    return noted(name, reading).exists ? m_values.value(name) : 0.0;
}

double AutoRegionCamera::write(RegionNumber number, double value)
{
    const double taken = m_manager.SetValue(nameOf(number), value);
    if (taken >= 0.0)
        m_values[nameOf(number)] = taken;
    return this->value(number);
}

bool AutoRegionCamera::isRegionTold() const
{
    const auto four = numbers();
    return m_limits.width() > 0.0
        && std::all_of(four.begin(), four.end(), [this](RegionNumber number) {
               return !has(number) || m_values.contains(nameOf(number));
           });
}

QPointF AutoRegionCamera::origin() const
{
    return {m_values.value(Name::autoModeOffsetX), m_values.value(Name::autoModeOffsetY)};
}

void AutoRegionCamera::readOrigin()
{
    for (const QString& name : m_originNames)
        read(name, FeatureReader::Value);
}

bool AutoRegionCamera::followImage(bool isSizeTold)
{
    const QSizeF imageSize(readValue(Name::width), readValue(Name::height));
    if (!isSizeTold && imageSize == m_imageSize)
        return false;
    const auto limits = readLimits();
    if (!limits) {
        m_untold << Name::height;
        return false;
    }
    m_imageSize = imageSize;
    return std::exchange(m_limits, *limits) != *limits;
}

std::optional<QSizeF> AutoRegionCamera::readLimits()
{
    using Number = Reading<double>;
    const auto reads = m_manager.link()->manyReads();
    bool isTold = true;
    const auto part = [&](const QString& name, int parts, std::optional<double> Number::*which) {
        const Number reading = read(name, parts);
        isTold = isTold && (reading.*which || reading.isComplete);
        return (reading.*which).value_or(0.0);
    };
    const auto increment = [&](const QString& name) {
        return part(name, FeatureReader::Increment, &Number::increment);
    };
    const auto minimum
        = [&](const QString& name) { return part(name, FeatureReader::Range, &Number::minimum); };
    const auto maximum
        = [&](const QString& name) { return part(name, FeatureReader::Range, &Number::maximum); };
    double width = part(Name::width, FeatureReader::Value, &Number::value);
    double height = part(Name::height, FeatureReader::Value, &Number::value);
    if (has(Name::aoiHeight))
        height = aoiHeightLimit(height, increment(Name::aoiHeight), minimum(Name::height),
                                minimum(Name::aoiOffsetX));
    else if (has(Name::autoModeHeight))
        height = maximum(Name::autoModeHeight);
    if (has(Name::aoiWidth))
        width = aoiWidthLimit(width, increment(Name::aoiWidth), minimum(Name::aoiOffsetY));
    else if (has(Name::autoModeWidth))
        width = maximum(Name::autoModeWidth);
    return isTold ? std::optional(QSizeF(std::trunc(width), std::trunc(height))) : std::nullopt;
}

QSize AutoRegionCamera::readSensorSize()
{
    return {readSensorExtent(Name::imageColumns), readSensorExtent(Name::imageRows)};
}

int AutoRegionCamera::readSensorExtent(const Name::ImageAxis& axis)
{
    read(axis.sensor);
    read(axis.maximum);
    if (!m_values.contains(axis.sensor) && !m_values.contains(axis.maximum))
        return toInt(read(axis.size).maximum.value_or(0.0) + readValue(axis.offset));
    const double known = m_values.value(axis.sensor, m_values.value(axis.maximum));
    return toInt(std::min(known, m_values.value(axis.maximum, known)));
}

QRect AutoRegionCamera::readImageRegion(bool hasImage)
{
    const bool isMultiple
        = readValue(Name::multipleRegionEnable, Name::multipleRegionsEnable) != 0.0;
    if (!isMultiple || !hasImage)
        return truncatedRect(readValue(Name::offsetX), readValue(Name::offsetY),
                             readValue(Name::width), readValue(Name::height));
    if (m_manager.GetDataType(Name::subRegionSelector) == Sdk::enumerationType)
        m_manager.SetStringValue(Name::subRegionSelector, QStringLiteral("Region0"));
    else
        m_manager.SetValue(Name::subRegionSelector, 0.0);
    return truncatedRect(
        readValue(Name::subRegionOffsetX, Name::offsetX), readValue(Name::subRegionOffsetY),
        readValue(Name::subRegionWidth, Name::width), readValue(Name::subRegionHeight));
}

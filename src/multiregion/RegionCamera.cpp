#include "multiregion/RegionCamera.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "features/SdkValues.h"
#include "sensor/PixelRect.h"

#include <QCoreApplication>

#include <algorithm>

namespace Name = FeatureNames;

namespace {

const QString onEntry = QStringLiteral("On");
const QString offEntry = QStringLiteral("Off");
const QString regionEntry = QStringLiteral("Region%1");

/// Far beyond any sensor, and still an int when added up.
constexpr double largestSize = 1 << 29;

int wholePixels(double value, int missing)
{
    return value > 0.0 ? toInt(std::min(value, largestSize)) : missing;
}

} // namespace

RegionCamera::RegionCamera(FeatureManager* manager)
    : m_manager(manager)
{
}

double RegionCamera::count() const
{
    if (!m_manager->HasFeature(Name::subRegionSelector))
        return 0.0;
    if (hasEnumeratedSelector())
        return m_manager->GetEnumEntries(Name::subRegionSelector).size();
    SizeRange range;
    m_manager->GetValueLimits(Name::subRegionSelector, range.minimum, range.maximum);
    return std::max(0.0, range.maximum + 1.0);
}

QString RegionCamera::select(int region)
{
    if (hasEnumeratedSelector()) {
        const QString entry = regionEntry.arg(region);
        if (m_manager->SetStringValue(Name::subRegionSelector, entry) != entry)
            return QCoreApplication::translate("MultiROIWidget",
                                               "Set 'SubRegionSelector' = '%1' failed!")
                .arg(entry);
    } else if (toInt(m_manager->SetValue(Name::subRegionSelector, region)) != region) {
        return QCoreApplication::translate("MultiROIWidget", "Set 'SubRegionSelector' = %1 failed!")
            .arg(region);
    }
    return {};
}

int RegionCamera::selected() const
{
    if (!hasEnumeratedSelector())
        return toInt(m_manager->GetValue(Name::subRegionSelector));
    const QString entry = m_manager->GetStringValue(Name::subRegionSelector);
    bool isNumber = false;
    const int region = entry.midRef(regionEntry.indexOf(QLatin1Char('%'))).toInt(&isNumber);
    return isNumber && entry == regionEntry.arg(region) ? region : -1;
}

bool RegionCamera::isOn() const
{
    return m_manager->GetStringValue(Name::subRegionMode) == onEntry;
}

bool RegionCamera::isValid() const
{
    if (!isOn())
        return false;
    const bool isJudged = m_manager->HasFeature(Name::multipleRegionsEnable)
        && m_manager->GetValue(Name::multipleRegionsEnable) != 0.0;
    return !isJudged || m_manager->GetStringValue(Name::subRegionStatus) == QLatin1String("Valid");
}

bool RegionCamera::switchOn(bool on)
{
    return m_manager->SetStringValue(Name::subRegionMode, on ? onEntry : offEntry) == onEntry;
}

QRect RegionCamera::geometry() const
{
    return truncatedRect(m_manager->GetValue(Name::subRegionOffsetX, Name::offsetX),
                         m_manager->GetValue(Name::subRegionOffsetY),
                         m_manager->GetValue(Name::subRegionWidth, Name::width),
                         m_manager->GetValue(Name::subRegionHeight));
}

SizeRange RegionCamera::widthRange() const
{
    SizeRange range;
    m_manager->GetValueRange(Name::subRegionWidth, Name::width, range.minimum, range.maximum,
                             range.increment);
    return range;
}

SizeRange RegionCamera::heightRange() const
{
    SizeRange range;
    m_manager->GetValueRange(Name::subRegionHeight, range.minimum, range.maximum, range.increment);
    return range;
}

RegionSizeLimits RegionCamera::limits() const
{
    return {axisLimits(widthRange(), Name::subRegionOffsetX, Name::offsetX),
            axisLimits(heightRange(), Name::subRegionOffsetY, Name::subRegionOffsetY)};
}

void RegionCamera::writeGeometry(const QRect& rect, const QSize& former)
{
    const auto writeX
        = [&] { m_manager->SetValue(Name::subRegionOffsetX, Name::offsetX, rect.x()); };
    const auto writeY = [&] { m_manager->SetValue(Name::subRegionOffsetY, rect.y()); };
    if (rect.width() > former.width())
        writeX();
    m_manager->SetValue(Name::subRegionWidth, Name::width, rect.width());
    if (rect.width() <= former.width())
        writeX();
    if (rect.height() > former.height())
        writeY();
    m_manager->SetValue(Name::subRegionHeight, rect.height());
    if (rect.height() <= former.height())
        writeY();
}

QSize RegionCamera::sensorSize() const
{
    return {wholePixels(m_manager->GetValue(Name::widthMax), 0),
            wholePixels(m_manager->GetValue(Name::heightMax), 0)};
}

bool RegionCamera::hasEnumeratedSelector() const
{
    return m_manager->GetDataType(Name::subRegionSelector) == Sdk::enumerationType;
}

AxisLimits RegionCamera::axisLimits(const SizeRange& size, const QString& offset,
                                    const QString& olderOffset) const
{
    AxisLimits limits;
    limits.minimum = wholePixels(size.minimum, 1);
    limits.maximum = wholePixels(size.maximum, toInt(largestSize));
    limits.increment = wholePixels(size.increment, 1);
    limits.offsetIncrement = wholePixels(m_manager->GetIncrement(offset, olderOffset), 1);
    return limits;
}

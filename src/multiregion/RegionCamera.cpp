#include "multiregion/RegionCamera.h"

#include "features/FeatureNames.h"
#include "features/FeatureManager.h"
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
    if (!m_manager->HasFeature(Name::selector))
        return 0.0;
    if (hasEnumeratedSelector())
        return m_manager->GetEnumEntries(Name::selector).size();
    SizeRange range;
    m_manager->GetValueLimits(Name::selector, range.minimum, range.maximum);
    return std::max(0.0, range.maximum + 1.0);
}

QString RegionCamera::select(int region)
{
    if (hasEnumeratedSelector()) {
        const QString entry = regionEntry.arg(region);
        if (m_manager->SetStringValue(Name::selector, entry) != entry)
            return QCoreApplication::translate("MultiROIWidget",
                                               "Set 'SubRegionSelector' = '%1' failed!")
                .arg(entry);
    } else if (toInt(m_manager->SetValue(Name::selector, region)) != region) {
        return QCoreApplication::translate("MultiROIWidget", "Set 'SubRegionSelector' = %1 failed!")
            .arg(region);
    }
    return {};
}

int RegionCamera::selected() const
{
    if (!hasEnumeratedSelector())
        return toInt(m_manager->GetValue(Name::selector));
    const QString entry = m_manager->GetStringValue(Name::selector);
    bool isNumber = false;
    const int region = entry.midRef(regionEntry.indexOf(QLatin1Char('%'))).toInt(&isNumber);
    return isNumber && entry == regionEntry.arg(region) ? region : -1;
}

bool RegionCamera::isOn() const
{
    return m_manager->GetStringValue(Name::regionMode) == onEntry;
}

bool RegionCamera::isValid() const
{
    if (!isOn())
        return false;
    const bool isJudged
        = m_manager->HasFeature(Name::otherEnable) && m_manager->GetValue(Name::otherEnable) != 0.0;
    return !isJudged || m_manager->GetStringValue(Name::status) == QLatin1String("Valid");
}

bool RegionCamera::switchOn(bool on)
{
    return m_manager->SetStringValue(Name::regionMode, on ? onEntry : offEntry) == onEntry;
}

QRect RegionCamera::geometry() const
{
    return truncatedRect(
        m_manager->GetValue(Name::offsetX, Name::olderOffsetX), m_manager->GetValue(Name::offsetY),
        m_manager->GetValue(Name::width, Name::olderWidth), m_manager->GetValue(Name::height));
}

SizeRange RegionCamera::widthRange() const
{
    SizeRange range;
    m_manager->GetValueRange(Name::width, Name::olderWidth, range.minimum, range.maximum,
                             range.increment);
    return range;
}

SizeRange RegionCamera::heightRange() const
{
    SizeRange range;
    m_manager->GetValueRange(Name::height, range.minimum, range.maximum, range.increment);
    return range;
}

RegionSizeLimits RegionCamera::limits() const
{
    return {axisLimits(widthRange(), Name::offsetX, Name::olderOffsetX),
            axisLimits(heightRange(), Name::offsetY, Name::offsetY)};
}

void RegionCamera::writeGeometry(const QRect& rect, const QSize& former)
{
    const auto writeX = [&] { m_manager->SetValue(Name::offsetX, Name::olderOffsetX, rect.x()); };
    const auto writeY = [&] { m_manager->SetValue(Name::offsetY, rect.y()); };
    if (rect.width() > former.width())
        writeX();
    m_manager->SetValue(Name::width, Name::olderWidth, rect.width());
    if (rect.width() <= former.width())
        writeX();
    if (rect.height() > former.height())
        writeY();
    m_manager->SetValue(Name::height, rect.height());
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
    return m_manager->GetDataType(Name::selector) == Sdk::enumerationType;
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

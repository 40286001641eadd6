#include "multiregion/RegionCamera.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "features/FeatureWriting.h"
#include "features/NumberConversion.h"
#include "features/Reading.h"
#include "features/SdkValues.h"
#include "multiregion/rules/RegionText.h"
#include "sensor/PixelRect.h"

#include <algorithm>
#include <mutex>

namespace Name = FeatureNames;

namespace {

const QString onEntry = QStringLiteral("On");
const QString offEntry = QStringLiteral("Off");
const QString regionEntry = QStringLiteral("Region%1");

constexpr int sizeLimits = FeatureReader::Range | FeatureReader::Increment;

int wholePixels(std::optional<double> value, int missing)
{
    return value.value_or(0.0) > 0.0 ? toInt(std::min(*value, double{largestCoordinate})) : missing;
}

/// 0 for what the camera does not have.
std::optional<double> readKnown(FeatureManager& manager, const QString& name,
                                const QString& olderName = {})
{
    const Reading<double> reading = manager.Read(name, olderName).number(FeatureReader::Value);
    return reading.isComplete ? std::optional<double>(reading.value.value_or(0.0)) : std::nullopt;
}

double readCount(FeatureReader& selector)
{
    if (selector.dataType() == Sdk::enumerationType)
        return selector.entries().size();
    const auto maximum = selector.number().maximum;
    return maximum ? std::max(0.0, *maximum + 1.0) : 0.0;
}

/// The names of a region's features on one axis, the older one last.
struct AxisNames
{
    QString offset, olderOffset, size, olderSize;
};

const AxisNames& namesOf(Qt::Orientation axis)
{
    static const AxisNames horizontal{Name::subRegionOffsetX, Name::offsetX, Name::subRegionWidth,
                                      Name::width};
    static const AxisNames vertical{Name::subRegionOffsetY, {}, Name::subRegionHeight, {}};
    return axis == Qt::Horizontal ? horizontal : vertical;
}

struct AxisReading
{
    AxisReading(FeatureManager& manager, Qt::Orientation axis, bool withLimits)
        : offset(manager.Read(namesOf(axis).offset, namesOf(axis).olderOffset)
                     .number(FeatureReader::Value | (withLimits ? FeatureReader::Increment : 0)))
        , size(manager.Read(namesOf(axis).size, namesOf(axis).olderSize)
                   .fieldNumber(FeatureReader::Value | (withLimits ? sizeLimits : 0)))
    {
    }

    bool isComplete() const { return offset.isComplete && size.isComplete; }
    AxisLimits limits() const
    {
        AxisLimits limits;
        limits.minimum = wholePixels(size.minimum, 1);
        limits.maximum = wholePixels(size.maximum, largestCoordinate);
        limits.increment = wholePixels(size.increment, 1);
        limits.offsetIncrement = wholePixels(offset.increment, 1);
        return limits;
    }

    const Reading<double> offset;
    const Reading<double> size;
};

} // namespace

RegionCamera::RegionCamera(FeatureManager* manager)
    : RegionCamera(*manager, manager->Read(Name::subRegionSelector))
{
}

RegionCamera::RegionCamera(FeatureManager& manager, FeatureReader selector)
    : m_manager(manager)
    , m_isEnumerated(selector.dataType() == Sdk::enumerationType)
    , m_count(readCount(selector))
{
}

RegionCamera::Selection RegionCamera::select(int region)
{
    const std::unique_lock<QMutex> lock(m_selectorLock, std::try_to_lock);
    if (!lock || region < 0)
        return Selection::Refused;
    if (m_isEnumerated) {
        const QString entry = regionEntry.arg(region);
        const QString answer = m_manager.SetStringValue(Name::subRegionSelector, entry);
        if (answer != entry)
            return answer.isEmpty() ? Selection::Unknown : Selection::Refused;
    } else {
        // The manager would clamp it to another region.
        if (region >= m_count)
            return Selection::Refused;
        const double answer = m_manager.SetValue(Name::subRegionSelector, region);
        if (toInt(answer) != region)
            return answer < 0.0 ? Selection::Unknown : Selection::Refused;
    }
    m_lastSelected = region;
    return Selection::Done;
}

QString RegionCamera::failureOf(int region) const
{
    return m_isEnumerated
        ? RegionText::tr("Set 'SubRegionSelector' = '%1' failed!").arg(regionEntry.arg(region))
        : RegionText::tr("Set 'SubRegionSelector' = %1 failed!").arg(region);
}

std::optional<int> RegionCamera::readSelected() const
{
    if (!m_isEnumerated) {
        const auto region = m_manager.Read(Name::subRegionSelector).value();
        return region ? std::optional<int>(toInt(*region)) : std::nullopt;
    }
    const QString entry = m_manager.GetStringValue(Name::subRegionSelector);
    bool isNumber = false;
    const int region = entry.midRef(regionEntry.indexOf(QLatin1Char('%'))).toInt(&isNumber);
    return isNumber && entry == regionEntry.arg(region) ? std::optional<int>(region) : std::nullopt;
}

std::optional<bool> RegionCamera::readOn() const
{
    const auto mode = m_manager.Read(Name::subRegionMode).read<QString>(FeatureReader::Value);
    return mode.isComplete ? std::optional<bool>(mode.value == onEntry) : std::nullopt;
}

bool RegionCamera::readIsValid() const
{
    const auto isEnabled = readKnown(m_manager, Name::multipleRegionsEnable);
    return isEnabled.value_or(0.0) == 0.0
        || m_manager.GetStringValue(Name::subRegionStatus) == QLatin1String("Valid");
}

std::optional<RegionState> RegionCamera::read(bool withLimits) const
{
    const auto manyReads = m_manager.link()->manyReads();
    const AxisReading x(m_manager, Qt::Horizontal, withLimits);
    const AxisReading y(m_manager, Qt::Vertical, withLimits);
    if (!x.isComplete() || !y.isComplete())
        return std::nullopt;
    const QRect geometry = truncatedRect(x.offset.value.value_or(0.0), y.offset.value.value_or(0.0),
                                         x.size.value.value_or(0.0), y.size.value.value_or(0.0));
    if (!withLimits)
        return RegionState{geometry, std::nullopt};
    return RegionState{geometry, RegionSizeLimits{x.limits(), y.limits()}};
}

std::optional<QRect> RegionCamera::readGeometry() const
{
    const std::optional<RegionState> state = read(false);
    return state ? std::optional<QRect>(state->geometry) : std::nullopt;
}

std::optional<QSize> RegionCamera::readSize() const
{
    const auto width = readKnown(m_manager, Name::subRegionWidth, Name::width);
    const auto height = readKnown(m_manager, Name::subRegionHeight);
    return width && height ? std::optional<QSize>({toInt(*width), toInt(*height)}) : std::nullopt;
}

std::optional<SizeRange> RegionCamera::readSizeRange(Qt::Orientation axis) const
{
    const Reading<double> size
        = m_manager.Read(namesOf(axis).size, namesOf(axis).olderSize).fieldNumber(sizeLimits);
    if (!size.isComplete)
        return std::nullopt;
    const auto known
        = [](std::optional<double> bound) { return std::max(0.0, bound.value_or(0.0)); };
    return SizeRange{known(size.minimum), known(size.maximum), known(size.increment)};
}

std::optional<bool> RegionCamera::writeOn(bool on)
{
    const QString answer = m_manager.SetStringValue(Name::subRegionMode, on ? onEntry : offEntry);
    return answer.isEmpty() ? std::nullopt : std::optional<bool>(answer == onEntry);
}

bool RegionCamera::writeFeature(const QString& name, const QVariant& value)
{
    return m_manager.SetVariantValue(name, value);
}

void RegionCamera::writeGeometry(const QRect& rect, const QSize& former)
{
    // What came of it is seen when the region is read.
    const auto writeNumber = [this](const QString& name, const QString& olderName, double value) {
        FeatureReader feature = m_manager.Read(name, olderName);
        FeatureWriting::writeNumber(feature, name, value);
    };
    const auto write = [&](Qt::Orientation axis, double offset, double size, double formerSize) {
        const AxisNames& names = namesOf(axis);
        if (size > formerSize)
            writeNumber(names.offset, names.olderOffset, offset);
        writeNumber(names.size, names.olderSize, size);
        if (size <= formerSize)
            writeNumber(names.offset, names.olderOffset, offset);
    };
    write(Qt::Horizontal, rect.x(), rect.width(), former.width());
    write(Qt::Vertical, rect.y(), rect.height(), former.height());
}

std::optional<QSize> RegionCamera::readSensorSize() const
{
    const auto width = readKnown(m_manager, Name::widthMax);
    const auto height = readKnown(m_manager, Name::heightMax);
    if (!width || !height)
        return std::nullopt;
    return QSize(wholePixels(width, 0), wholePixels(height, 0));
}

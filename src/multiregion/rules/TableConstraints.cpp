#include "multiregion/rules/TableConstraints.h"

#include "features/FeatureNames.h"
#include "multiregion/rules/ConstraintGroups.h"
#include "sensor/Span.h"

#include <algorithm>

namespace Name = FeatureNames;

namespace {

constexpr std::int64_t ownBound = -1;

} // namespace

bool isOffset(const QString& feature)
{
    return feature.contains(QLatin1String("Offset"));
}

int masterRegion(int region, const QString& feature, const QStringList& constrained)
{
    constexpr int tileCorner = 3;
    constexpr int featuresOfTwoMasters = 3;

    if (region == 0 || !constrained.contains(feature))
        return -1;
    const auto axis = axisOf(feature);
    if (region != tileCorner || constrained.size() < featuresOfTwoMasters || !axis)
        return 0;
    return *axis == Qt::Vertical ? 2 : 1;
}

QStringList counterparts(const QString& feature)
{
    if (axisOf(feature) == Qt::Vertical)
        return {isOffset(feature) ? Name::subRegionHeight : Name::subRegionOffsetY};
    return isOffset(feature) ? QStringList{Name::subRegionWidth, Name::width}
                             : QStringList{Name::subRegionOffsetX, Name::offsetX};
}

ConstrainedRange constrainedRange(const QString& feature, const QRect& range,
                                  std::optional<std::int64_t> counterpart, std::int64_t increment)
{
    const auto axis = axisOf(feature);
    if (!axis)
        return {};
    const auto area = spanOf<std::int64_t>(range, *axis);
    ConstrainedRange result;
    if (isOffset(feature) && area.start != ownBound)
        result.minimum = area.start;
    if (counterpart && area.end() - *counterpart != ownBound) {
        const std::int64_t maximum = area.end() - *counterpart;
        result.maximum = maximum - maximum % std::max<std::int64_t>(1, increment);
    }
    return result;
}

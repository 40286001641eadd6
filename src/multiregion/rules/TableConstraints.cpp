#include "multiregion/rules/TableConstraints.h"

#include "features/FeatureNames.h"
#include "multiregion/rules/ConstraintGroups.h"

namespace Name = FeatureNames;

namespace {

constexpr qint64 ownBound = -1;

bool isOffset(const QString& feature)
{
    return feature == Name::subRegionOffsetX || feature == Name::offsetX
        || feature == Name::subRegionOffsetY;
}

} // namespace

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
    const auto axis = axisOf(feature);
    if (!axis)
        return {};
    if (*axis == Qt::Vertical)
        return {isOffset(feature) ? Name::subRegionHeight : Name::subRegionOffsetY};
    return isOffset(feature) ? QStringList{Name::subRegionWidth, Name::width}
                             : QStringList{Name::subRegionOffsetX, Name::offsetX};
}

ConstrainedRange constrainedRange(const QString& feature, const QRect& range,
                                  std::optional<qint64> counterpart, qint64 increment)
{
    const auto axis = axisOf(feature);
    if (!axis)
        return {};
    const bool isVertical = *axis == Qt::Vertical;
    const qint64 begin = isVertical ? range.y() : range.x();
    const qint64 size = isVertical ? range.height() : range.width();
    ConstrainedRange result;
    if (isOffset(feature))
        result.minimum = begin;
    if (!counterpart || begin + size - *counterpart == ownBound)
        return result;
    result.maximum = begin + size - *counterpart;
    if (increment > 0)
        *result.maximum -= *result.maximum % increment;
    return result;
}

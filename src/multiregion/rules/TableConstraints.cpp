#include "multiregion/rules/TableConstraints.h"

#include "features/FeatureNames.h"

namespace Name = FeatureNames;

namespace {

enum class Quantity {
    OffsetX,
    OffsetY,
    Width,
    Height,
    Other,
};

Quantity quantityOf(const QString& feature)
{
    if (feature == Name::subRegionOffsetX || feature == Name::offsetX)
        return Quantity::OffsetX;
    if (feature == Name::subRegionWidth || feature == Name::width)
        return Quantity::Width;
    if (feature == Name::subRegionOffsetY)
        return Quantity::OffsetY;
    if (feature == Name::subRegionHeight)
        return Quantity::Height;
    return Quantity::Other;
}

ConstrainedRange unroundedRange(const QString& feature, const QRect& range,
                                const TableGeometry& present)
{
    const qint64 behindRight = static_cast<qint64>(range.x()) + range.width();
    const qint64 behindBottom = static_cast<qint64>(range.y()) + range.height();
    switch (quantityOf(feature)) {
    case Quantity::OffsetX:
        return {range.x(), behindRight - present.width};
    case Quantity::Width:
        return {-1, behindRight - present.offsetX};
    case Quantity::OffsetY:
        return {range.y(), behindBottom - present.height};
    case Quantity::Height:
        return {-1, behindBottom - present.offsetY};
    case Quantity::Other:
        break;
    }
    return {};
}

} // namespace

int masterRegion(int region, const QString& feature, const QStringList& constrained)
{
    constexpr int tileCorner = 3;
    constexpr int featuresOfTwoMasters = 3;

    if (region == 0 || !constrained.contains(feature))
        return -1;
    if (region != tileCorner || constrained.size() < featuresOfTwoMasters)
        return 0;
    switch (quantityOf(feature)) {
    case Quantity::OffsetY:
    case Quantity::Height:
        return 2;
    case Quantity::OffsetX:
    case Quantity::Width:
        return 1;
    case Quantity::Other:
        break;
    }
    return 0;
}

ConstrainedRange constrainedRange(const QString& feature, const QRect& range,
                                  const TableGeometry& present, qint64 increment)
{
    ConstrainedRange result = unroundedRange(feature, range, present);
    if (result.maximum != -1 && increment > 0)
        result.maximum -= result.maximum % increment;
    return result;
}

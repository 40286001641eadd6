#include "multiregion/rules/ConstraintGroups.h"

#include "features/FeatureNames.h"

namespace Name = FeatureNames;

namespace {

/// Appends the group of the regions that belong to it, when they are two or more.
template <typename Belongs>
void appendGroup(QVector<ConstraintGroup>& groups, ConstraintGroup::Kind kind,
                 const QVector<int>& shown, Belongs&& belongs)
{
    ConstraintGroup group{kind, {}};
    for (const int region : shown) {
        if (belongs(region))
            group.members << region;
    }
    if (group.members.size() > 1)
        groups << group;
}

} // namespace

QVector<ConstraintGroup> constraintGroups(ArrangementMode mode, const QVector<int>& shown)
{
    const auto all = [](int) { return true; };
    QVector<ConstraintGroup> groups;
    switch (mode) {
    case ArrangementMode::Horizontal:
        appendGroup(groups, ConstraintGroup::Row, shown, all);
        break;
    case ArrangementMode::Vertical:
        appendGroup(groups, ConstraintGroup::Column, shown, all);
        break;
    case ArrangementMode::Tile:
        for (int i = 0; i + 1 < shown.size(); ++i) {
            if (shown[i] % 2 == 0 && shown[i + 1] == shown[i] + 1)
                groups << ConstraintGroup{ConstraintGroup::Row, {shown[i], shown[i + 1]}};
        }
        appendGroup(groups, ConstraintGroup::Column, shown, [](int r) { return r % 2 == 0; });
        appendGroup(groups, ConstraintGroup::Column, shown, [](int r) { return r % 2 == 1; });
        break;
    case ArrangementMode::Free:
        break;
    }
    return groups;
}

QVector<int> sharingRegions(const QVector<ConstraintGroup>& groups, int region,
                            Qt::Orientation axis)
{
    for (const ConstraintGroup& group : groups) {
        if (group.axis() == axis && group.members.contains(region))
            return group.members;
    }
    return {};
}

std::optional<Qt::Orientation> axisOf(const QString& feature)
{
    if (feature == Name::subRegionOffsetY || feature == Name::subRegionHeight)
        return Qt::Vertical;
    if (QStringList{Name::subRegionOffsetX, Name::offsetX, Name::subRegionWidth, Name::width}
            .contains(feature))
        return Qt::Horizontal;
    return std::nullopt;
}

QVector<int> sharingRegions(const QVector<ConstraintGroup>& groups, int region,
                            const QString& feature)
{
    const auto axis = axisOf(feature);
    const QVector<int> members = axis ? sharingRegions(groups, region, *axis) : QVector<int>();
    return members.isEmpty() ? QVector<int>{region} : members;
}

QStringList sharedFeatures(int region, const QVector<ConstraintGroup>& groups)
{
    QStringList features;
    for (const ConstraintGroup& group : groups) {
        if (!group.members.contains(region) || group.master() == region)
            continue;
        if (group.kind == ConstraintGroup::Row)
            features << Name::subRegionOffsetY << Name::subRegionHeight;
        else
            features << Name::subRegionOffsetX << Name::subRegionWidth;
    }
    return features;
}

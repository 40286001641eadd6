#include "multiregion/rules/ConstraintGroups.h"

#include "features/FeatureNames.h"

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

QStringList sharedFeatures(int region, const QVector<ConstraintGroup>& groups)
{
    QStringList features;
    for (const ConstraintGroup& group : groups) {
        if (!group.members.contains(region) || group.master() == region)
            continue;
        if (group.kind == ConstraintGroup::Row)
            features << FeatureNames::subRegionOffsetY << FeatureNames::subRegionHeight;
        else
            features << FeatureNames::subRegionOffsetX << FeatureNames::subRegionWidth;
    }
    return features;
}

#pragma once

#include "multiregion/rules/ArrangementMode.h"

#include <QStringList>
#include <QVector>
#include <Qt>

#include <optional>

/// Shown regions that share their rows (offset and height) or their columns (offset and width).
struct ConstraintGroup
{
    enum Kind {
        Row,
        Column,
    };

    Kind kind = Row;
    QVector<int> members; ///< ascending, at least two

    /// The member whose edges the others follow.
    int master() const { return members.first(); }
    /// The axis of the shared edges.
    Qt::Orientation axis() const { return kind == Row ? Qt::Vertical : Qt::Horizontal; }
};

inline bool operator==(const ConstraintGroup& a, const ConstraintGroup& b)
{
    return a.kind == b.kind && a.members == b.members;
}

/// All regions are one row or one column, tiles are rows and columns of two, free regions share
/// nothing.
/// @param shown region numbers, ascending
QVector<ConstraintGroup> constraintGroups(ArrangementMode mode, const QVector<int>& shown);

/// The members of the group whose edges along @p axis a region shares; none without such a group.
QVector<int> sharingRegions(const QVector<ConstraintGroup>& groups, int region,
                            Qt::Orientation axis);

/// The axis on which a feature places a region; none for any other feature.
std::optional<Qt::Orientation> axisOf(const QString& feature);
/// The regions that have the feature in common with this one, itself among them, the master first.
QVector<int> sharingRegions(const QVector<ConstraintGroup>& groups, int region,
                            const QString& feature);

/// The features that a region takes from the masters of its groups.
QStringList sharedFeatures(int region, const QVector<ConstraintGroup>& groups);

#pragma once

#include "multiregion/rules/ArrangementMode.h"

#include <QString>
#include <QVector>
#include <Qt>

/// What the page asks the user before or after it switches regions.
enum class Question {
    None,
    LoadDefaults,
    ColumnOff,
    RowOff,
    RowOrColumnOff,
    SubsequentOff,
    ColumnOn,
    RowOn,
};

/// What a click on a region's button comes to.
struct Toggle
{
    enum Kind {
        Place, ///< behind the region before it, which switches it on
        SwitchOn,
        SwitchOff,
    };

    Kind kind = Place;
    Qt::Orientation axis = Qt::Horizontal; ///< on which it is placed
    Question question = Question::None;    ///< asked before regions go off, or after one was placed
    QVector<int> off;                      ///< in this order; by a row, where that is the question
    QVector<int> offColumn;                ///< instead of @c off by a column
};

/// @param active one entry a region
Toggle toggleFor(ArrangementMode mode, int region, bool on, const QVector<bool>& active);

struct RegionButtonState
{
    bool enabled = true;
    QString toolTip; ///< why the region cannot be activated; empty otherwise
};

/// Which regions can be switched so that the arrangement stays satisfiable, one entry each. Region
/// 0 has no rule: it is free unless the camera streams.
/// @param active one entry a region: whether it is on
/// @param checked one entry a region: whether its button is, also when the region found no place
QVector<RegionButtonState> regionButtonStates(ArrangementMode mode, const QVector<bool>& active,
                                              const QVector<bool>& checked, bool streaming);

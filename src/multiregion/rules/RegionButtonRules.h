#pragma once

#include "multiregion/rules/ArrangementMode.h"

#include <QString>
#include <QVector>

struct RegionButtonState
{
    bool enabled = true;
    QString toolTip; ///< why the region cannot be activated; empty otherwise
};

/// Which regions can be switched so that the arrangement stays satisfiable.
/// @param active one entry a region: whether it is on
/// @param checked one entry a region: whether its button is, also when the region found no place
/// @return one entry a region. That of region 0 has no rule: it is free unless the camera streams.
QVector<RegionButtonState> regionButtonStates(ArrangementMode mode, const QVector<bool>& active,
                                              const QVector<bool>& checked, bool streaming);

#pragma once

#include "CameraEntry.h"

#include <QCoreApplication>

/// What a person is told of the simulator's cameras, in the order in which they are offered.
class SimulatedModels
{
    Q_DECLARE_TR_FUNCTIONS(SimulatedModels)

public:
    static QVector<CameraEntry> all();
};

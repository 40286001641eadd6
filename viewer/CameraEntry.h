#pragma once

#include <QString>
#include <QVector>

/// A camera that can be opened.
struct CameraEntry
{
    QString id; ///< what opens it
    QString name;
    QString description;
};

#pragma once

#include "ScriptRunner.h"

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

/// What the command line asks for. Paths are absolute.
struct ViewerOptions
{
    Q_DECLARE_TR_FUNCTIONS(ViewerOptions)

public:
    bool listCameras = false;
    bool dark = false;
    bool keepGoing = false; ///< an action that cannot be done does not end the program
    bool presentAsSupported = false;
    QString camera;
    QString modulePath;
    QString screenshot;
    QSize size;         ///< empty: as the last window, or by the screen
    int quitAfter = -1; ///< milliseconds, or -1 to stay
    QVector<ScriptAction> actions;
    QString error; ///< what is wrong with the command line, or empty
};

/// Reads the command line; answers --help and --version itself and ends the program.
ViewerOptions parseOptions(const QStringList& arguments);

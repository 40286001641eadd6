#pragma once

#include <QObject>
#include <QQueue>
#include <QString>
#include <QVector>

class MainWindow;

/// One thing that a person would do, told on the command line.
struct ScriptAction
{
    enum Kind {
        Click, ///< argument: object name
        Set,   ///< argument: object name=value
        Tab,   ///< argument: text of a tab
        Edit,  ///< argument: feature whose cell in the feature table is opened
        Write, ///< argument: feature=value, as another client of the camera
        Start, ///< start streaming
        Stop,  ///< stop streaming
        Close, ///< close the camera
        Wait,  ///< argument: milliseconds
    };

    Kind kind;
    QString argument;
};

/// Carries out actions one after the other, with the window's events processed in between.
class ScriptRunner : public QObject
{
    Q_OBJECT

public:
    ScriptRunner(MainWindow& window, const QVector<ScriptAction>& actions);

    void start();

signals:
    /// An action could not be done; the next ones follow.
    void failed(const QString& reason);
    /// All actions were carried out, or tried.
    void finished();

private:
    void step();
    QString perform(const ScriptAction& action);
    QString writeFeature(const QString& feature, const QString& value);

    MainWindow& m_window;
    QQueue<ScriptAction> m_actions;
};

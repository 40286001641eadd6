#include "Options.h"

#include <QCommandLineParser>

Options Options::parse(const QCoreApplication& application)
{
    const QCommandLineOption module(QStringLiteral("module"), QStringLiteral("The built module."),
                                    QStringLiteral("PATH"), QStringLiteral(MODULE_PATH));
    const QCommandLineOption minutes(QStringLiteral("minutes"), QStringLiteral("How long to run."),
                                     QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption seed(QStringLiteral("seed"),
                                  QStringLiteral("The seed of all sessions."), QStringLiteral("S"),
                                  QStringLiteral("1"));
    const QCommandLineOption sessions(QStringLiteral("sessions"),
                                      QStringLiteral("Ends after so many sessions."),
                                      QStringLiteral("N"));
    const QCommandLineOption replay(QStringLiteral("replay"),
                                    QStringLiteral("Runs the one session with this seed."),
                                    QStringLiteral("SEED"));
    const QCommandLineOption cameras(QStringLiteral("cameras"),
                                     QStringLiteral("Opens and closes so many cameras instead."),
                                     QStringLiteral("N"), QStringLiteral("0"));
    const QCommandLineOption storm(
        QStringLiteral("storm"),
        QStringLiteral("Sends 1000 notifications a second for so many minutes instead."),
        QStringLiteral("MINUTES"), QStringLiteral("0"));
    const QCommandLineOption twice(
        QStringLiteral("check-replay"),
        QStringLiteral("Runs each session without threads twice and compares the SDK calls."));
    const QCommandLineOption verbose(QStringLiteral("verbose"),
                                     QStringLiteral("Names each action."));

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({module, minutes, seed, sessions, replay, cameras, storm, twice, verbose});
    parser.process(application);

    Options options;
    options.module = parser.value(module);
    options.minutes = parser.value(minutes).toDouble();
    options.seed = parser.value(seed).toULongLong();
    if (parser.isSet(sessions))
        options.sessions = parser.value(sessions).toULongLong();
    if (parser.isSet(replay))
        options.replay = parser.value(replay).toULongLong();
    options.cameras = parser.value(cameras).toInt();
    options.stormMinutes = parser.value(storm).toDouble();
    options.checksReplay = parser.isSet(twice);
    options.isVerbose = parser.isSet(verbose);
    return options;
}

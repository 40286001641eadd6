#include "Options.h"

#include <QCommandLineParser>

Options Options::parse(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const auto add = [&parser](const char* name, const char* text, const char* value = "") {
        parser.addOption({QLatin1String(name), QLatin1String(text), QLatin1String(value)});
        return QLatin1String(name);
    };
    const auto module = add("module", "The built module.", "PATH");
    const auto minutes = add("minutes", "How long to run: 1, if it is not told.", "N");
    const auto seed = add("seed", "The seed of all sessions.", "S");
    const auto sessions = add("sessions", "Ends after so many sessions.", "N");
    const auto replay = add("replay", "Runs the one session with this seed.", "SEED");
    const auto cameras = add("cameras", "Opens and closes so many cameras instead.", "N");
    const auto storm
        = add("storm", "Sends 1000 notifications a second for so many minutes instead.", "MINUTES");
    const auto twice = add("check-replay",
                           "Runs each session without threads twice and compares the SDK calls.");
    const auto verbose = add("verbose", "Names each action.");
    parser.process(application);

    Options options;
    if (parser.isSet(module))
        options.module = parser.value(module);
    if (parser.isSet(minutes))
        options.minutes = parser.value(minutes).toDouble();
    if (parser.isSet(seed))
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

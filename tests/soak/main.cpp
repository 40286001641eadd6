#include "LongRuns.h"
#include "SampleFiles.h"
#include "Session.h"
#include "VirtualTime.h"
#include "Watchdog.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPluginLoader>
#include <QTemporaryDir>

namespace {

/// Nothing may come out of the module into the viewer's event loop.
class SoakApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        report.find(QString("an exception: %1").arg(error.what()));
        return true;
    }

    Report report;
};

// The first page of a process loads fonts, icons and styles; a session is to replay alone.
void warmUp(const Session::Run& run)
{
    Report ignored;
    const Session::Run first{run.module, run.pictures, run.translationFolders, ignored};
    for (const char* model : {"aoi", "multi-region"})
        Session(first, 0, model).run();
}

void runSessions(const Session::Run& run, const QCommandLineParser& options)
{
    constexpr int enoughFindings = 20;
    const std::chrono::duration<double, std::ratio<60>> length(options.value("minutes").toDouble());
    const auto end = VirtualTime::real() + length;
    Random seeds(options.value("seed").toULongLong());
    while (VirtualTime::real() < end && run.report.findings < enoughFindings) {
        const std::uint64_t seed = seeds.next();
        Session session(run, seed);
        session.run();
        if (!options.isSet("check-replay") || session.hasThreads())
            continue;
        Session again(run, seed);
        again.run();
        if (again.digest() != session.digest())
            again.find("a second run of the seed differs");
    }
}

// What people and earlier runs have set must not reach a run.
void isolate(const QTemporaryDir& home)
{
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, home.path().toLocal8Bit());
    qputenv("LC_ALL", "de_DE.UTF-8"); // whose translations there are
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    qputenv("QT_HASH_SEED", "0");
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    isolate(home);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    SoakApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser options;
    options.addOptions({
        {"minutes", "How long to run.", "N", "1"},
        {"seed", "The seed of all sessions.", "S", "1"},
        {"replay", "Runs the one session with this seed.", "SEED"},
        {"cameras", "Opens and closes so many cameras instead.", "N"},
        {"storm", "Sends 1000 notifications a second for so many minutes instead.", "MINUTES"},
        {"check-replay", "Runs each session without threads twice and compares the SDK calls."},
        {"verbose", "Names each action."},
    });
    options.process(application);

    QPluginLoader loader(MODULE_PATH);
    auto* const module = qobject_cast<TabExtensionInterface*>(loader.instance());
    if (!module)
        qFatal("%s", qPrintable(loader.errorString()));
    Watchdog::start(options.isSet("verbose"));
    Report& report = application.report;
    if (options.isSet("cameras")) {
        LongRuns::openAndClose(*module, report, options.value("cameras").toInt());
    } else if (options.isSet("storm")) {
        LongRuns::storm(*module, report, options.value("storm").toDouble());
    } else {
        const QStringList pictures = writePictureFiles(home.path());
        const QStringList folders = writeTranslationFolders(home.path());
        const Session::Run run{*module, pictures, folders, report};
        warmUp(run);
        if (options.isSet("replay"))
            Session(run, options.value("replay").toULongLong()).run();
        else
            runSessions(run, options);
    }
    report.print();
    return report.findings == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

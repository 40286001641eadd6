#include "LongRuns.h"
#include "Options.h"
#include "PictureFiles.h"
#include "Report.h"
#include "Session.h"
#include "VirtualTime.h"
#include "Watchdog.h"

#include <QApplication>
#include <QPluginLoader>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>

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
        report.findings.append(QStringLiteral("an exception: %1").arg(error.what()));
        std::fprintf(stderr, "finding: %s\n", qPrintable(report.findings.last()));
        return true;
    }

    Report report;
};

std::uint64_t sessionSeed(std::uint64_t seed, std::uint64_t number)
{
    return Random(seed + number * 0xD1B54A32D192ED03u).next();
}

// The first page of a process installs translations and loads fonts, icons and styles. A session is
// to replay alone as it ran after others.
void warmUp(const Session::Run& run)
{
    Report ignored;
    const Session::Run first{run.module, run.pictures, run.translations, run.watchdog, ignored};
    for (const char* model : {"aoi", "multi-region"})
        Session(first, 0, model).run();
}

void runSessions(const Session::Run& run, const Options& options)
{
    warmUp(run);
    constexpr int enoughFindings = 20;
    const std::chrono::nanoseconds end = VirtualTime::real()
        + std::chrono::milliseconds(static_cast<std::int64_t>(options.minutes * 60000.0));
    for (std::uint64_t i = 0; VirtualTime::real() < end && i < options.sessions
         && run.report.findings.size() < enoughFindings;
         ++i) {
        const std::uint64_t seed = sessionSeed(options.seed, i);
        Session session(run, seed);
        session.run();
        if (options.checksReplay && !session.hasThreads()) {
            Session again(run, seed);
            again.run();
            if (again.digest() != session.digest())
                again.find(QStringLiteral("a second run of the seed differs"));
        }
    }
}

void runOne(const Session::Run& run, std::uint64_t seed)
{
    warmUp(run);
    Session session(run, seed);
    session.run();
    std::fprintf(stderr, "digest %016llx%s\n", static_cast<unsigned long long>(session.digest()),
                 session.hasThreads() ? ", with threads" : "");
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
    const Options options = Options::parse(application);

    QPluginLoader loader(options.module);
    auto* const module = qobject_cast<TabExtensionInterface*>(loader.instance());
    if (!module) {
        std::fprintf(stderr, "%s\n", qPrintable(loader.errorString()));
        return EXIT_FAILURE;
    }
    const PictureFiles pictures;
    const TranslationFiles translations;
    Watchdog watchdog;
    Report& report = application.report;
    const Session::Run run{*module, pictures, translations, watchdog, report, options.isVerbose};
    if (options.cameras > 0)
        LongRuns::openAndClose(*module, watchdog, report, options.cameras);
    else if (options.stormMinutes > 0)
        LongRuns::storm(*module, watchdog, report, options.stormMinutes);
    else if (options.replay)
        runOne(run, *options.replay);
    else
        runSessions(run, options);
    report.print();
    return report.findings.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

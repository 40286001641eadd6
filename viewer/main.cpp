#include "CameraFinder.h"
#include "Language.h"
#include "MainWindow.h"
#include "ScriptRunner.h"
#include "SimulatedModels.h"
#include "ViewerOptions.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

#ifdef WITH_GENICAM
#include "GenicamFinder.h"
#endif

namespace {

enum ExitCode {
    Done = 0,
    ScriptFailed = 1,
    WrongUsage = 2,
};

/// Qt's own log output cannot be used: the module's pages silence it for the whole process.
void printError(const QString& message)
{
    QTextStream(stderr) << "viewer: " << message << '\n';
}

/// Null where the program knows simulated cameras alone.
std::unique_ptr<CameraFinder> createFinder()
{
#ifdef WITH_GENICAM
    return std::make_unique<GenicamFinder>();
#else
    return nullptr;
#endif
}

void listCameras()
{
    QTextStream out(stdout);
    QVector<CameraEntry> cameras = SimulatedModels::all();
    if (const auto finder = createFinder())
        cameras += finder->findNow();
    for (const CameraEntry& camera : qAsConst(cameras))
        out << camera.id.leftJustified(28) << ' ' << camera.name << ": " << camera.description
            << '\n';
}

bool isKnownCamera(const QString& id)
{
    if (CameraFinder::isResponsibleFor(id))
        return createFinder() != nullptr;
    const auto models = SimulatedModels::all();
    return std::any_of(models.begin(), models.end(), [&](const CameraEntry& model) {
        return model.id == id.section(QLatin1Char('+'), 0, 0);
    });
}

QString complaint(const ViewerOptions& options)
{
    if (!options.error.isEmpty())
        return options.error;
    if (!options.camera.isEmpty() && !isKnownCamera(options.camera))
        return ViewerOptions::tr("There is no camera '%1'; --list-cameras names them.")
            .arg(options.camera);
    return {};
}

/// Ends the program when it was started for a screenshot.
void onScriptFinished(MainWindow& window, const QString& screenshot)
{
    if (screenshot.isEmpty())
        return;
    const bool saved = window.screenshot().save(screenshot, "PNG");
    if (!saved)
        printError(ViewerOptions::tr("Cannot write %1.").arg(screenshot));
    QCoreApplication::exit(saved ? Done : ScriptFailed);
}

void onActionFailed(const QString& reason, bool keepGoing)
{
    printError(reason);
    if (!keepGoing)
        QCoreApplication::exit(ScriptFailed);
}

/// What only prints runs where there is no display.
std::unique_ptr<QCoreApplication> createApplication(int& argc, char** argv)
{
    const bool printsOnly = std::any_of(argv, argv + argc, [](const char* argument) {
        const QByteArrayList printing{"--list-cameras", "--help", "--help-all", "-h"};
        return printing.contains(argument);
    });
    if (printsOnly)
        return std::make_unique<QCoreApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

/// Without a desktop there is no theme to take the font from; pictures are to be alike.
void chooseOffscreenFont()
{
    constexpr int pointSize = 10;
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), pointSize));
}

#ifdef Q_OS_WIN
/// Started from Explorer, the program gets a console window that nobody else uses.
void closeOwnConsole()
{
    DWORD process = 0;
    if (GetConsoleProcessList(&process, 1) == 1)
        FreeConsole();
}
#endif

} // namespace

int main(int argc, char** argv)
{
#ifdef Q_OS_WIN
    closeOwnConsole();
#endif
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#ifdef Q_OS_WIN
    // One and a half is common there, and would become two.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
    chooseLanguage(argc, argv);
    const auto application = createApplication(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("tabextensionimgfmt"));
    QCoreApplication::setApplicationName(QStringLiteral("viewer"));

    loadTranslations();

    const ViewerOptions options = parseOptions(QCoreApplication::arguments());
    if (options.listCameras) {
        listCameras();
        return Done;
    }
    const QString wrong = complaint(options);
    if (!wrong.isEmpty()) {
        printError(wrong);
        return WrongUsage;
    }
    // The pages look for their translations in qm/ of the working directory.
    QDir::setCurrent(QCoreApplication::applicationDirPath());

    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        chooseOffscreenFont();
    MainWindow::setDark(options.dark);
    MainWindow window(options.modulePath, createFinder());
    window.setPresentedAsSupported(options.presentAsSupported);
    const bool isScripted = !options.actions.isEmpty() || !options.screenshot.isEmpty();
    if (!options.size.isEmpty())
        window.resize(options.size);
    else if (!isScripted)
        window.rememberLayout();
    window.show();
    if (!options.camera.isEmpty())
        window.openCamera(options.camera);

    ScriptRunner script(window, options.actions);
    QObject::connect(&script, &ScriptRunner::failed, &window,
                     [&](const QString& reason) { onActionFailed(reason, options.keepGoing); });
    QObject::connect(&script, &ScriptRunner::finished, &window,
                     [&] { onScriptFinished(window, options.screenshot); });
    if (window.isOpening())
        QObject::connect(&window, &MainWindow::openingEnded, &script, &ScriptRunner::start);
    else
        script.start();
    // What is run by a script asks the network when the script says so.
    if (!isScripted)
        window.searchCameras();
    if (options.quitAfter >= 0)
        QTimer::singleShot(options.quitAfter, application.get(), &QCoreApplication::quit);
    return QApplication::exec();
}

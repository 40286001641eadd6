#include "ViewerOptions.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QHash>

namespace {

#ifdef Q_OS_WIN
constexpr const char* moduleFileName = "tabextensionimgfmt.dll";
#else
constexpr const char* moduleFileName = "libtabextensionimgfmt.so";
#endif

struct ScriptOption
{
    const char* name;
    const char* argument;
    const char* description;
    ScriptAction::Kind kind;
};

const ScriptOption scriptOptions[] = {
    {"click", "OBJECTNAME",
     QT_TRANSLATE_NOOP("ViewerOptions", "Click a widget; in a dialog, the button of this text."),
     ScriptAction::Click},
    {"set", "OBJECTNAME=VALUE",
     QT_TRANSLATE_NOOP("ViewerOptions",
                       "Set a spin box, choice, check box or field as a user would."),
     ScriptAction::Set},
    {"tab", "TEXT",
     QT_TRANSLATE_NOOP("ViewerOptions",
                       "Select the tab of this text, or of the page of this object name."),
     ScriptAction::Tab},
    {"edit", "FEATURE",
     QT_TRANSLATE_NOOP("ViewerOptions",
                       "Open the editor of a feature in the table of camera features."),
     ScriptAction::Edit},
    {"write", "FEATURE=VALUE",
     QT_TRANSLATE_NOOP("ViewerOptions", "Write a feature as another client of the camera."),
     ScriptAction::Write},
    {"start", nullptr, QT_TRANSLATE_NOOP("ViewerOptions", "Start streaming."), ScriptAction::Start},
    {"stop", nullptr, QT_TRANSLATE_NOOP("ViewerOptions", "Stop streaming."), ScriptAction::Stop},
    {"close", nullptr, QT_TRANSLATE_NOOP("ViewerOptions", "Close the camera."),
     ScriptAction::Close},
    {"wait", "MS", QT_TRANSLATE_NOOP("ViewerOptions", "Wait, with the window alive."),
     ScriptAction::Wait},
};

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(ViewerOptions::tr(
        "Opens simulated cameras and shows the module's page for them.\n"
        "Actions (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) may be "
        "given several times; they are carried out in the order given, then the screenshot "
        "is written."));
    parser.addHelpOption();
    parser.addOptions({
        {"list-cameras",
         ViewerOptions::tr(
             "List the cameras and end; where built with GenICam cameras, those found as well.")},
        {"camera",
         ViewerOptions::tr("Open this camera: NAME of the list, NAME+N with N features more, or "
                           "genicam:ADDRESS."),
         "NAME"},
        {"plugin",
         ViewerOptions::tr(
             "Load the module from this file instead of plugins/ beside the program."),
         "PATH"},
        {"size", ViewerOptions::tr("Size of the window; with it, nothing is remembered."), "WxH"},
        {"present-as-supported",
         ViewerOptions::tr("Tell the page a vendor that it supports, whoever made the camera.")},
        {"language",
         ViewerOptions::tr("Take this language for the system's: de, fr, ja, zh_CN, or en."),
         "NAME"},
        {"dark", ViewerOptions::tr("Use dark colours.")},
        {"screenshot", ViewerOptions::tr("Write a picture of the window to this PNG file and end."),
         "FILE"},
        {"keep-going", ViewerOptions::tr("Report actions that cannot be done and go on.")},
        {"quit-after", ViewerOptions::tr("End after so many milliseconds."), "MS"},
    });
    for (const ScriptOption& option : scriptOptions)
        parser.addOption({option.name, ViewerOptions::tr(option.description), option.argument});
}

/// The parser keeps the order of the names, and for each name the order of its values.
QVector<ScriptAction> actionsInOrder(const QCommandLineParser& parser)
{
    QVector<ScriptAction> actions;
    QHash<QString, int> used;
    const QStringList names = parser.optionNames();
    for (const QString& name : names) {
        for (const ScriptOption& option : scriptOptions) {
            if (name == QLatin1String(option.name))
                actions.append({option.kind, parser.values(name).value(used[name]++)});
        }
    }
    return actions;
}

QSize parseSize(const QString& size)
{
    const QStringList parts = size.split(QLatin1Char('x'));
    return parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
}

} // namespace

ViewerOptions parseOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(arguments);

    ViewerOptions options;
    options.listCameras = parser.isSet("list-cameras");
    options.presentAsSupported = parser.isSet("present-as-supported");
    options.dark = parser.isSet("dark");
    options.keepGoing = parser.isSet("keep-going");
    options.camera = parser.value("camera");
    options.modulePath = parser.isSet("plugin")
        ? QFileInfo(parser.value("plugin")).absoluteFilePath()
        : QCoreApplication::applicationDirPath() + "/plugins/" + moduleFileName;
    if (parser.isSet("screenshot"))
        options.screenshot = QFileInfo(parser.value("screenshot")).absoluteFilePath();
    options.actions = actionsInOrder(parser);

    if (parser.isSet("size")) {
        options.size = parseSize(parser.value("size"));
        if (options.size.isEmpty())
            options.error = ViewerOptions::tr("--size takes a width and a height, as in 1400x900.");
    }
    if (parser.isSet("quit-after")) {
        bool valid = false;
        options.quitAfter = parser.value("quit-after").toInt(&valid);
        if (!valid || options.quitAfter < 0)
            options.error = ViewerOptions::tr("--quit-after takes a number of milliseconds.");
    }
    if (!parser.positionalArguments().isEmpty())
        options.error = ViewerOptions::tr("Unexpected argument '%1'.")
                            .arg(parser.positionalArguments().constFirst());
    return options;
}

#include "ViewerOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
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
    {"click", "OBJECTNAME", "Click a widget; in a dialog, the button of this text.",
     ScriptAction::Click},
    {"set", "OBJECTNAME=VALUE", "Set a spin box, choice, check box or field as a user would.",
     ScriptAction::Set},
    {"tab", "TEXT", "Select the tab of this text.", ScriptAction::Tab},
    {"edit", "FEATURE", "Open the editor of a feature in the table of camera features.",
     ScriptAction::Edit},
    {"write", "FEATURE=VALUE", "Write a feature as another client of the camera.",
     ScriptAction::Write},
    {"start", nullptr, "Start streaming.", ScriptAction::Start},
    {"stop", nullptr, "Stop streaming.", ScriptAction::Stop},
    {"close", nullptr, "Close the camera.", ScriptAction::Close},
    {"wait", "MS", "Wait, with the window alive.", ScriptAction::Wait},
};

QString text(const char* source)
{
    return QCoreApplication::translate("ViewerOptions", source);
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(text(
        "Opens simulated cameras and shows the module's page for them.\n"
        "Actions (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) may be "
        "given several times; they are carried out in the order given, then the screenshot "
        "is written."));
    parser.addHelpOption();
    parser.addOptions({
        {"list-cameras",
         text("List the cameras and end; where built with GenICam cameras, those found as well.")},
        {"camera", text("Open this camera: a name of the list, or genicam:ADDRESS."), "NAME"},
        {"plugin", text("Load the module from this file instead of plugins/ beside the program."),
         "PATH"},
        {"size", text("Size of the window; with it, nothing is remembered."), "WxH"},
        {"present-as-supported",
         text("Tell the page a vendor that it supports, whoever made the camera.")},
        {"dark", text("Use dark colours.")},
        {"screenshot", text("Write a picture of the window to this PNG file and end."), "FILE"},
        {"keep-going", text("Report actions that cannot be done and go on.")},
        {"quit-after", text("End after so many milliseconds."), "MS"},
    });
    for (const ScriptOption& option : scriptOptions)
        parser.addOption({option.name, text(option.description), option.argument});
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
            options.error = text("--size takes a width and a height, as in 1400x900.");
    }
    if (parser.isSet("quit-after")) {
        bool valid = false;
        options.quitAfter = parser.value("quit-after").toInt(&valid);
        if (!valid || options.quitAfter < 0)
            options.error = text("--quit-after takes a number of milliseconds.");
    }
    if (!parser.positionalArguments().isEmpty())
        options.error
            = text("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    return options;
}

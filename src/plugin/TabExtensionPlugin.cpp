#include "plugin/TabExtensionPlugin.h"

#include "imageformat/ImageFormatWidget.h"
#include "page/TabExtensionException.h"

#include <QVBoxLayout>
#include <QWidget>

#include <string>

namespace {

// The viewer's names of its members, each a SIGNAL() or SLOT() text. Empty names are left to
// QObject::connect(), which leaves that one connection out.
struct ConnectionNames
{
    std::string streamingSignal;
    std::string loggingSlot;
    std::string frameSignal;
    std::string requestFrameSlot;
};

ConnectionNames readConnectionNames(const QMap<QString, QVariant>* connections)
{
    if (!connections)
        return {};
    const auto name = [connections](const char* key) {
        return connections->value(QLatin1String(key)).toString().toStdString();
    };
    return {name("connectWidgetToSignal"), name("connectLoggingSlot"),
            name("connectSendFrameSignal"), name("connectRequestFrameSlot")};
}

void connectToHost(QObject* host, ImageFormatWidget* widget, const ConnectionNames& names)
{
    QObject::connect(host, names.streamingSignal.c_str(), widget, SLOT(camIsStreaming(bool)));
    QObject::connect(widget, SIGNAL(loggingMessage(ZebViewerLogCategory, const QString&)), host,
                     names.loggingSlot.c_str());
    QObject::connect(host, names.frameSignal.c_str(), widget,
                     SIGNAL(receiveFrameSignal(const QPixmap&)));
    QObject::connect(widget, SIGNAL(requestFrameSignal()), host, names.requestFrameSlot.c_str());
}

} // namespace

TabExtensionPlugin::TabExtensionPlugin()
{
    // A viewer may connect across threads.
    qRegisterMetaType<ZebViewerLogCategory>("ZebViewerLogCategory");
}

qint32 TabExtensionPlugin::createTab(const FeatureList& features, QWidget* page,
                                     const QMap<QString, QVariant>* connections)
try {
    auto* const widget = new ImageFormatWidget(features, page);
    QObject* const host = page->parent();
    const ConnectionNames names = readConnectionNames(connections);
    if (host)
        connectToHost(host, widget, names);

    auto* const layout = new QVBoxLayout;
    layout->addWidget(widget);
    page->setLayout(layout);
    return 0;
} catch (const TabExtensionException& exception) {
    return exception.code();
}

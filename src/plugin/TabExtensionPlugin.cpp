#include "plugin/TabExtensionPlugin.h"

#include "imageformat/ImageFormatWidget.h"
#include "page/TabExtensionException.h"

#include <QVBoxLayout>
#include <QWidget>

namespace {

/// By the viewer's names of its members, each a SIGNAL() or SLOT() text. Empty names are left to
/// QObject::connect(), which leaves that one connection out.
void connectToHost(QObject* host, ImageFormatWidget* widget,
                   const QMap<QString, QVariant>& connections)
{
    const auto name = [&connections](const char* key) {
        return connections.value(QLatin1String(key)).toString().toStdString();
    };
    QObject::connect(host, name("connectWidgetToSignal").c_str(), widget,
                     SLOT(camIsStreaming(bool)));
    QObject::connect(widget, SIGNAL(loggingMessage(ZebViewerLogCategory, const QString&)), host,
                     name("connectLoggingSlot").c_str());
    QObject::connect(host, name("connectSendFrameSignal").c_str(), widget,
                     SIGNAL(receiveFrameSignal(const QPixmap&)));
    QObject::connect(widget, SIGNAL(requestFrameSignal()), host,
                     name("connectRequestFrameSlot").c_str());
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
    if (host && connections)
        connectToHost(host, widget, *connections);

    auto* const layout = new QVBoxLayout;
    layout->addWidget(widget);
    page->setLayout(layout);
    return 0;
} catch (const TabExtensionException& exception) {
    return exception.code();
}

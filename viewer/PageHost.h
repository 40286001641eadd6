#pragma once

#include "host/TabExtensionInterface.h"

#include <QWidget>

class CameraSession;
class PluginHost;

/// The module's page for one camera, and the object that the page is connected with. In place of a
/// page that the module refuses, it shows why.
class PageHost : public QWidget
{
    Q_OBJECT

public:
    PageHost(PluginHost& plugin, CameraSession& session, QWidget* parent = nullptr);

    /// The page's accessible name, as the module gave it.
    QString title() const;

    /// Why there is no page, or empty.
    QString refusal() const { return m_refusal; }

signals:
    void streaming(bool running);
    void frameReady(const QPixmap& frame);
    /// What the page logs, for the viewer.
    void logged(ZebViewerLogCategory category, const QString& text);

public slots:
    void onLoggingMessage(ZebViewerLogCategory category, const QString& text);
    void onFrameRequested();

private:
    void showRefusal();
    void sendFrame();

    CameraSession& m_session;
    QWidget* m_page;
    QString m_refusal;
};

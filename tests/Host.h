#pragma once

#include "host/TabExtensionInterface.h"

#include <QMap>
#include <QPixmap>
#include <QVariant>
#include <QWidget>

/// The viewer's side of a page: the object that owns it, with the members that it is connected to.
class Host : public QWidget
{
    Q_OBJECT

public:
    QPixmap lastFrame; ///< what a request for a frame is answered with, unless it is null
    int frameRequests = 0;
    QList<QPair<int, QString>> log;

    static QMap<QString, QVariant> connections()
    {
        return {{QStringLiteral("connectWidgetToSignal"), SIGNAL(streaming(bool))},
                {QStringLiteral("connectLoggingSlot"),
                 SLOT(takeLog(ZebViewerLogCategory, const QString&))},
                {QStringLiteral("connectSendFrameSignal"), SIGNAL(sendFrame(const QPixmap&))},
                {QStringLiteral("connectRequestFrameSlot"), SLOT(requestFrame())}};
    }

signals:
    void streaming(bool running);
    void sendFrame(const QPixmap& frame);

public slots:
    void takeLog(ZebViewerLogCategory category, const QString& text)
    {
        log.append({category, text});
    }
    void requestFrame()
    {
        ++frameRequests;
        if (!lastFrame.isNull())
            emit sendFrame(lastFrame);
    }
};

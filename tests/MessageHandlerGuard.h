#pragma once

#include <QtGlobal>

/// Gives QtTest its message handler back: constructing a page replaces it for the whole process.
class MessageHandlerGuard
{
public:
    MessageHandlerGuard()
        : m_handler(qInstallMessageHandler(nullptr))
    {
        qInstallMessageHandler(m_handler);
    }
    ~MessageHandlerGuard() { qInstallMessageHandler(m_handler); }
    Q_DISABLE_COPY_MOVE(MessageHandlerGuard)

private:
    QtMessageHandler m_handler;
};

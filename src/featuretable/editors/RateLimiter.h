#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

/// Passes requests on at a limited rate: the first at once, the last always.
class RateLimiter : public QObject
{
    Q_OBJECT

public:
    explicit RateLimiter(std::chrono::milliseconds interval, QObject* parent = nullptr);

    void request();

signals:
    void due();

private:
    void onTimeout();

    QTimer m_timer;
    bool m_waiting = false;
};

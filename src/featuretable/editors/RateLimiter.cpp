#include "featuretable/editors/RateLimiter.h"

RateLimiter::RateLimiter(std::chrono::milliseconds interval, QObject* parent)
    : QObject(parent)
{
    m_timer.setInterval(interval);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &RateLimiter::onTimeout);
}

void RateLimiter::request()
{
    m_waiting = true;
    if (!m_timer.isActive())
        onTimeout();
}

void RateLimiter::onTimeout()
{
    if (!m_waiting)
        return;
    m_waiting = false;
    m_timer.start();
    emit due();
}

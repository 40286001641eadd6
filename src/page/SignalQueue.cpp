#include "page/SignalQueue.h"

#include <utility>

SignalQueue::Call::Call(SignalQueue& queue)
    : m_queue(queue)
    , m_owner(queue.m_owner)
{
    ++m_queue.m_calls;
}

SignalQueue::Call::~Call()
{
    if (!m_owner)
        return;
    --m_queue.m_calls;
    m_queue.deliverUnlessCalled();
}

void SignalQueue::deliverUnlessCalled()
{
    const QPointer<QObject> owner = m_owner;
    while (owner && m_calls == 0 && !m_waiting.empty()) {
        const std::function<void()> emission = std::move(m_waiting.front());
        m_waiting.pop_front();
        emission();
    }
}

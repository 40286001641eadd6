#pragma once

#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>

/// Signals that wait for the end of their owner's outermost call. By then nothing of it is left to
/// be done, so that a receiver may call the owner again, write the camera or delete the owner.
class SignalQueue
{
public:
    explicit SignalQueue(QObject* owner)
        : m_owner(owner)
    {
    }

    /// A call of the owner's, within others perhaps.
    class Call
    {
    public:
        explicit Call(SignalQueue& queue);
        ~Call();
        Q_DISABLE_COPY_MOVE(Call)

    private:
        SignalQueue& m_queue;
        const QPointer<QObject> m_owner;
    };

    /// Emits now when no call is under way.
    template <typename Sender, typename Signal, typename... Arguments>
    void add(Sender* sender, Signal signal, const Arguments&... arguments)
    {
        m_waiting.push_back([=] { (sender->*signal)(arguments...); });
        deliverUnlessCalled();
    }

private:
    void deliverUnlessCalled();

    const QPointer<QObject> m_owner;
    std::deque<std::function<void()>> m_waiting;
    int m_calls = 0;
};

#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

/// Children of a page whose signals are being handled. Qt still works on them afterwards: they
/// outlive a page that a receiver deletes.
class SenderShelter
{
public:
    SenderShelter() = default;
    ~SenderShelter()
    {
        for (const QPointer<QWidget>& sender : qAsConst(m_senders)) {
            if (!sender)
                continue;
            sender->setParent(nullptr);
            sender->deleteLater();
        }
    }
    Q_DISABLE_COPY_MOVE(SenderShelter)

    class Handling
    {
    public:
        Handling(SenderShelter& shelter, const QWidget* page, QObject* sender)
            : m_shelter(shelter)
            , m_page(page)
        {
            m_shelter.m_senders << qobject_cast<QWidget*>(sender);
        }
        ~Handling()
        {
            if (m_page)
                m_shelter.m_senders.removeLast();
        }
        Q_DISABLE_COPY_MOVE(Handling)

    private:
        SenderShelter& m_shelter;
        const QPointer<const QWidget> m_page;
    };

private:
    QVector<QPointer<QWidget>> m_senders;
};

#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

#include <memory>

/// Children of a page whose signals are being handled outlive a page that a receiver deletes.
class SenderShelter
{
public:
    SenderShelter() = default;
    ~SenderShelter()
    {
        for (const QPointer<QWidget>& sender : qAsConst(*m_senders)) {
            if (!sender)
                continue;
            sender->setParent(nullptr);
            sender->deleteLater();
        }
    }
    Q_DISABLE_COPY_MOVE(SenderShelter)

    /// @return lives as long as the signal is handled
    [[nodiscard]] std::shared_ptr<void> handling(QObject* sender)
    {
        m_senders->append(qobject_cast<QWidget*>(sender));
        return {nullptr, [senders = m_senders](void*) { senders->removeLast(); }};
    }

private:
    const std::shared_ptr<QVector<QPointer<QWidget>>> m_senders
        = std::make_shared<QVector<QPointer<QWidget>>>();
};

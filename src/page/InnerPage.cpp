#include "page/InnerPage.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QPointer>
#include <QTimer>

#include <algorithm>

bool Changes::any(const QStringList& candidates) const
{
    return all || std::any_of(candidates.begin(), candidates.end(), [this](const QString& name) {
               return names.contains(name);
           });
}

InnerPage::InnerPage(const FeatureList& camera, QWidget* parent)
    : BaseTabPluginWidget(camera, parent)
    , m_soonTimer(new QTimer(this))
{
    m_soonTimer->setSingleShot(true);
    m_soonTimer->setInterval(200);
    connect(m_soonTimer, &QTimer::timeout, this, &InnerPage::updateTimer);
}

void InnerPage::disconnectChildren()
{
    const auto children = findChildren<QObject*>();
    for (QObject* child : children)
        disconnect(child, nullptr, this, nullptr);
}

void InnerPage::guardFieldsAgainstWheel()
{
    for (QWidget* field : findChildren<QWidget*>()) {
        if (qobject_cast<QAbstractSpinBox*>(field) || qobject_cast<QComboBox*>(field))
            guardAgainstWheel(field);
    }
}

void InnerPage::readSoon(const QStringList& names)
{
    readAgain(names);
    m_soonTimer->start();
}

void InnerPage::readAllSoon()
{
    readAllNext();
    m_soonTimer->start();
}

void InnerPage::showEvent(QShowEvent* event)
{
    readAllNext();
    BaseTabPluginWidget::showEvent(event);
}

void InnerPage::refreshFeatures()
{
    const Changes changes{m_readsAll, *changedFeatures};
    if (m_isRefreshing || isAtWork()) {
        readAgain(changes.names);
        return;
    }
    const QPointer<InnerPage> self(this);
    m_isRefreshing = true;
    m_readsAll = false;
    const QStringList untold = refresh(changes);
    if (!self)
        return;
    m_isRefreshing = false;
    readAgain(untold);
}

#include "page/InnerPage.h"

#include "widgets/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

bool Changes::any(const QStringList& candidates) const
{
    return all || std::any_of(candidates.begin(), candidates.end(), [this](const QString& name) {
               return names.contains(name);
           });
}

void Changes::add(const Changes& more)
{
    all = all || more.all;
    names += more.names;
    names.removeDuplicates();
}

InnerPage::Busy::Busy(InnerPage* page)
    : m_page(page)
{
    ++m_page->m_busy;
}

InnerPage::Busy::~Busy()
{
    if (!m_page || --m_page->m_busy > 0 || m_page->m_pending.isEmpty())
        return;
    // Once the events under way are done with. A page that nobody sees leaves the camera alone.
    QTimer::singleShot(0, m_page, [page = m_page.data()] {
        if (page->isVisible())
            page->updateTimer();
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

InnerPage::~InnerPage()
{
    // A page that is deleted while it is visible is hidden later, when its parts are gone: a drag
    // then ends, and a field gives up what was typed.
    const auto children = findChildren<QObject*>();
    for (QObject* child : children)
        disconnect(child, nullptr, this, nullptr);
}

void InnerPage::guardFieldsAgainstWheel()
{
    for (QWidget* field : findChildren<QWidget*>()) {
        if (!qobject_cast<QAbstractSpinBox*>(field) && !qobject_cast<QComboBox*>(field))
            continue;
        // The default policy lets the wheel itself take the focus.
        field->setFocusPolicy(Qt::StrongFocus);
        field->installEventFilter(this);
    }
}

bool InnerPage::eventFilter(QObject* watched, QEvent* event)
{
    if (isUnfocusedFieldWheel(watched, event)) {
        event->ignore();
        return true;
    }
    return BaseTabPluginWidget::eventFilter(watched, event);
}

void InnerPage::readSoon(const QStringList& names)
{
    readNext(names);
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
    readNext(*changedFeatures);
    if (m_isRefreshing || isBusy() || isAtWork())
        return;
    const QPointer<InnerPage> self(this);
    m_isRefreshing = true;
    const QStringList untold = refresh(std::exchange(m_pending, {}));
    if (!self)
        return;
    m_isRefreshing = false;
    readNext(untold);
}

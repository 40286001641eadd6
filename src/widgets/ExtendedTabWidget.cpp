#include "widgets/ExtendedTabWidget.h"

#include <QEvent>
#include <QMenu>
#include <QTabBar>
#include <QToolButton>

#include <utility>

namespace {

// Out of the widget at once; deleted later, because it may be a click on it that is being handled.
void dismiss(QWidget* widget)
{
    widget->hide();
    widget->setParent(nullptr);
    widget->deleteLater();
}

} // namespace

ExtendedTabWidget::ExtendedTabWidget(QWidget* parent)
    : QTabWidget(parent)
    , m_baseStyleSheet(styleSheet())
{
}

void ExtendedTabWidget::setMode(int mode)
{
    const bool withMenu = mode == TabMenu || mode == TabMenuAndNewTabButton;
    const bool withPlus = mode == NewTabButton || mode == TabMenuAndNewTabButton;
    const QString hiddenScroller = QStringLiteral(
        " QTabBar::scroller { width: 0px; } QToolButton::menu-indicator { image: none; }");

    // A new-tab button has the last word on the style sheet: with it the scroll arrows stay.
    setStyleSheet(withMenu && !withPlus ? m_baseStyleSheet + hiddenScroller : m_baseStyleSheet);
    if (withMenu && !m_tabMenu)
        createTabMenu();
    if (withPlus && !m_plusButton)
        createPlusButton();
    if (!withMenu && !withPlus)
        removeButtons();
}

void ExtendedTabWidget::onChangeCurrentIndex(int index)
{
    if (!m_tabMenu)
        return;
    const QList<QAction*> actions = m_tabMenu->actions();
    for (int i = 0; i < actions.size(); ++i)
        actions[i]->setChecked(i == index);
}

void ExtendedTabWidget::tabInserted(int index)
{
    if (m_tabMenu) {
        insertMenuAction(index);
        onChangeCurrentIndex(currentIndex());
    }
    QTabWidget::tabInserted(index);
    updateMenuButton();
}

void ExtendedTabWidget::tabRemoved(int index)
{
    if (m_tabMenu) {
        if (QAction* const action = m_tabMenu->actions().value(index)) {
            m_tabMenu->removeAction(action);
            action->deleteLater(); // it may be this action's own click that removes the tab
        }
        onChangeCurrentIndex(currentIndex());
    }
    QTabWidget::tabRemoved(index);
    updateMenuButton();
}

void ExtendedTabWidget::resizeEvent(QResizeEvent* event)
{
    updateMenuButton();
    QTabWidget::resizeEvent(event);
}

// Only after these has the tab bar its width: it is first laid out when it is shown, and again when
// it is resized or when a tab's text or button changes.
bool ExtendedTabWidget::event(QEvent* event)
{
    const bool handled = QTabWidget::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize
        || event->type() == QEvent::LayoutRequest)
        updateMenuButton();
    return handled;
}

void ExtendedTabWidget::createTabMenu()
{
    m_tabMenu = new QMenu(this);
    for (int i = 0; i < count(); ++i)
        insertMenuAction(i);
    // Tabs may have been renamed or moved since their actions were made.
    connect(m_tabMenu, &QMenu::aboutToShow, this, [this] {
        const QList<QAction*> actions = m_tabMenu->actions();
        for (int i = 0; i < actions.size(); ++i)
            actions[i]->setText(tabText(i));
        onChangeCurrentIndex(currentIndex());
    });
    connect(this, &QTabWidget::currentChanged, this, &ExtendedTabWidget::onChangeCurrentIndex);
    onChangeCurrentIndex(currentIndex());

    m_menuButton = new QToolButton(this);
    m_menuButton->setArrowType(Qt::RightArrow);
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    m_menuButton->setMenu(m_tabMenu);
    setCornerWidget(m_menuButton, Qt::TopRightCorner);
    updateMenuButton();
}

void ExtendedTabWidget::createPlusButton()
{
    m_plusButton = new QToolButton(this);
    m_plusButton->setText(QStringLiteral("+"));
    connect(m_plusButton, &QToolButton::released, this, &ExtendedTabWidget::createNewTab);
    setCornerWidget(m_plusButton, Qt::TopLeftCorner);
    m_plusButton->show();
}

// QTabWidget follows its bare pointers to the corner widgets whenever it lays itself out.
void ExtendedTabWidget::removeButtons()
{
    if (m_menuButton) {
        disconnect(this, &QTabWidget::currentChanged, this,
                   &ExtendedTabWidget::onChangeCurrentIndex);
        setCornerWidget(nullptr, Qt::TopRightCorner);
        dismiss(std::exchange(m_menuButton, nullptr));
        dismiss(std::exchange(m_tabMenu, nullptr));
    }
    if (m_plusButton) {
        setCornerWidget(nullptr, Qt::TopLeftCorner);
        dismiss(std::exchange(m_plusButton, nullptr));
    }
}

void ExtendedTabWidget::insertMenuAction(int index)
{
    auto* action = new QAction(tabText(index), m_tabMenu);
    action->setCheckable(true);
    // Looked up when it happens, because tabs come and go before this one.
    connect(action, &QAction::triggered, this, [this, action] {
        if (m_tabMenu)
            setCurrentIndex(m_tabMenu->actions().indexOf(action));
        onChangeCurrentIndex(currentIndex()); // the click has toggled the action
    });
    m_tabMenu->insertAction(m_tabMenu->actions().value(index), action);
}

void ExtendedTabWidget::updateMenuButton()
{
    if (!m_menuButton)
        return;
    int tabsWidth = 0;
    for (int i = 0; i < count(); ++i)
        tabsWidth += tabBar()->tabRect(i).width();
    m_menuButton->setVisible(count() > 0 && tabsWidth > tabBar()->width());
}

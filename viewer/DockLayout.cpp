#include "DockLayout.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QSettings>

namespace {

/// To be raised when docks come, go or move: what was kept for the others is of no use then.
constexpr int layoutVersion = 1;

const QString geometryKey = QStringLiteral("window/geometry");
const QString docksKey = QStringLiteral("window/docks");

/// Where the keyboard was in @p part, else the first place that takes it; null where there is none.
QWidget* keyboardPlace(QWidget* part)
{
    const auto takesKeys = [](const QWidget* widget) {
        return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus);
    };
    if (part->focusWidget() && takesKeys(part->focusWidget()))
        return part->focusWidget();
    for (QWidget* widget = part->nextInFocusChain(); widget != part;
         widget = widget->nextInFocusChain()) {
        if (part->isAncestorOf(widget) && takesKeys(widget))
            return widget;
    }
    return nullptr;
}

} // namespace

DockLayout::DockLayout(QMainWindow& window)
    : QObject(&window)
    , m_window(window)
{
}

QDockWidget* DockLayout::add(QWidget* pane, const QString& title, int row)
{
    auto* dock = new QDockWidget(title, &m_window);
    dock->setObjectName(pane->metaObject()->className() + QStringLiteral("Dock"));
    dock->setWidget(pane);
    m_rows.resize(qMax(m_rows.size(), row + 1));
    m_rows[row].append(dock);
    return dock;
}

QVector<QDockWidget*> DockLayout::docks() const
{
    QVector<QDockWidget*> all;
    for (const auto& row : m_rows)
        all += row;
    return all;
}

void DockLayout::reset()
{
    for (const auto& row : qAsConst(m_rows)) {
        for (QDockWidget* dock : row) {
            dock->setFloating(false);
            m_window.addDockWidget(Qt::LeftDockWidgetArea, dock);
            if (dock != row.constFirst())
                m_window.tabifyDockWidget(row.constFirst(), dock);
            dock->show();
        }
        row.constFirst()->raise();
    }
    if (m_window.isVisible())
        resizeRows();
}

// The page has the rest of the width and the whole height.
void DockLayout::resizeRows()
{
    QList<QDockWidget*> tops;
    for (const auto& row : qAsConst(m_rows))
        tops.append(row.constFirst());
    const int height = m_window.height();
    m_window.resizeDocks(tops, {height * 5 / 16, height * 9 / 16, height / 8}, Qt::Vertical);
    m_window.resizeDocks({tops.constFirst()}, {m_window.width() * 3 / 10}, Qt::Horizontal);
}

void DockLayout::save(QSettings& settings) const
{
    settings.setValue(geometryKey, m_window.saveGeometry());
    settings.setValue(docksKey, m_window.saveState(layoutVersion));
}

bool DockLayout::restore(const QSettings& settings)
{
    return m_window.restoreGeometry(settings.value(geometryKey).toByteArray())
        && m_window.restoreState(settings.value(docksKey).toByteArray(), layoutVersion);
}

void DockLayout::moveFocus(int step)
{
    QVector<QWidget*> parts{m_window.centralWidget()};
    for (QDockWidget* dock : docks()) {
        if (!dock->isHidden())
            parts.append(dock);
    }
    int at = 0;
    while (at < parts.size() && !parts[at]->isAncestorOf(QApplication::focusWidget()))
        ++at;
    at %= parts.size();
    for (int passed = 0; passed < parts.size(); ++passed) {
        at = (at + step + parts.size()) % parts.size();
        parts[at]->raise();
        if (QWidget* place = keyboardPlace(parts[at])) {
            place->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

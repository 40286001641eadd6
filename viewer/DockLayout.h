#pragma once

#include <QObject>
#include <QVector>

class QDockWidget;
class QMainWindow;
class QSettings;

/// The window's panes in docks beside the page: how they lie at first, what is kept of that between
/// starts, and the way round them by key.
class DockLayout : public QObject
{
    Q_OBJECT

public:
    explicit DockLayout(QMainWindow& window);

    /// Panes of one row share its place as tabs; rows lie under one another.
    QDockWidget* add(QWidget* pane, const QString& title, int row);
    QVector<QDockWidget*> docks() const;

    /// As at the first start, with the size that the window has.
    void reset();
    /// Takes the first sizes, once the window is shown.
    void resizeRows();

    void save(QSettings& settings) const;
    /// False when there is nothing to restore.
    bool restore(const QSettings& settings);

    /// Moves the focus to the next dock, or the one before, with the window's centre among them.
    void focusNext() { moveFocus(1); }
    void focusPrevious() { moveFocus(-1); }

private:
    void moveFocus(int step);

    QMainWindow& m_window;
    QVector<QVector<QDockWidget*>> m_rows;
};

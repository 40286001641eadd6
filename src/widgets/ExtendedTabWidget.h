#pragma once

#include <QTabWidget>

class QMenu;
class QToolButton;

/// Can list its tabs in a menu when they no longer fit, and offer a "+" button for a new one.
class ExtendedTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    enum Mode {
        Plain = 1,
        TabMenu = 2,
        NewTabButton = 3,
        TabMenuAndNewTabButton = 4,
    };

    explicit ExtendedTabWidget(QWidget* parent);

    /// Adds what the mode needs to what is there already; every value but 2, 3 and 4 removes both
    /// buttons and the menu. Replaces the widget's style sheet by the one it was constructed with
    /// and, for mode 2 alone, hides the scroll arrows of the tab bar.
    void setMode(int mode);

signals:
    void createNewTab();

public slots:
    /// Checks the menu's action at this index and no other. Without a menu it does nothing.
    void onChangeCurrentIndex(int index);

protected:
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void createTabMenu();
    void createPlusButton();
    void removeButtons();
    void insertMenuAction(int index);
    void updateMenuButton();

    QMenu* m_tabMenu = nullptr;
    QToolButton* m_menuButton = nullptr;
    QToolButton* m_plusButton = nullptr;
    const QString m_baseStyleSheet;
};

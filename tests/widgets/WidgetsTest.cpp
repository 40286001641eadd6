#include "DataTable.h"
#include "widgets/CollapsingButton.h"
#include "widgets/ExtendedTabWidget.h"
#include "widgets/QSpinBoxMouseEventFilter.h"

#include <QLabel>
#include <QMenu>
#include <QSpinBox>
#include <QTabBar>
#include <QToolButton>

#include <functional>

namespace {

struct Foldable
{
    explicit Foldable(bool isUnfolded)
    {
        content.resize(100, 80);
        button.setChecked(isUnfolded);
        button.setContent(&content);
    }

    QLabel content;
    CollapsingButton button{nullptr};
};

QToolButton* button(const QTabWidget& tabs, Qt::Corner corner)
{
    return qobject_cast<QToolButton*>(tabs.cornerWidget(corner));
}

void addTabs(QTabWidget& tabs, int number)
{
    for (int i = 0; i < number; ++i)
        tabs.addTab(new QWidget, QString("Region %1").arg(tabs.count()));
}

/// The menu's titles, with a star at each checked one.
QString menuText(const QTabWidget& tabs)
{
    QStringList titles;
    const QList<QAction*> actions = button(tabs, Qt::TopRightCorner)->menu()->actions();
    for (const QAction* action : actions)
        titles << action->text() + QLatin1String(action->isChecked() ? "*" : "");
    return titles.join(QLatin1Char(','));
}

} // namespace

/// Controls that know no camera.
class WidgetsTest : public QObject
{
    Q_OBJECT

private slots:
    void unfoldsToTheHeightItFound()
    {
        Foldable f(false);
        QCOMPARE(f.content.maximumHeight(), 0);
        QCOMPARE(f.button.arrowType(), Qt::RightArrow);
        QElapsedTimer time;
        time.start();
        f.button.click();
        QCOMPARE(f.button.arrowType(), Qt::DownArrow);
        QTRY_COMPARE(f.content.maximumHeight(), 90);
        QVERIFY2(time.elapsed() >= 280, "the animation takes 300 ms");
    }

    void foldsFromTheHeightItHasGrownTo()
    {
        Foldable f(true);
        QCOMPARE(f.content.maximumHeight(), QWIDGETSIZE_MAX);
        f.content.resize(100, 200);
        f.button.click();
        QCOMPARE(f.content.maximumHeight(), 200);
        QTRY_COMPARE(f.content.maximumHeight(), 0);
        f.button.click();
        QTRY_COMPARE(f.content.maximumHeight(), 200);
    }

    void modesAddAndModeOneRemoves_data()
    {
        const DataTable row([](const QList<int>& modes, int menus, int pluses) {
            ExtendedTabWidget tabs(nullptr);
            tabs.show();
            addTabs(tabs, 2);
            for (const int mode : modes) {
                tabs.setMode(mode);
                tabs.resize(tabs.width() + 10, tabs.height()); // lays out, corners included
            }
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCOMPARE(tabs.findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly).size(),
                     menus + pluses);
            QCOMPARE(button(tabs, Qt::TopRightCorner) != nullptr, menus == 1);
            QCOMPARE(button(tabs, Qt::TopLeftCorner) != nullptr, pluses == 1);
        });
        row("menu, twice", {2, 2}, 1, 0);
        row("plus, twice", {3, 3}, 0, 1);
        row("unknown mode", {4, 7}, 0, 0);
        row("through all", {2, 1, 1, 3, 4, 1, 4}, 1, 1);
    }
    void modesAddAndModeOneRemoves() { runRow(); }

    void showsTheMenuButtonOnOverflowOnly()
    {
        ExtendedTabWidget tabs(nullptr);
        tabs.setMode(ExtendedTabWidget::TabMenu);
        const auto isShown = [&] { return button(tabs, Qt::TopRightCorner)->isVisible(); };
        tabs.resize(400, 200);
        tabs.show();
        for (const int added : {0, 2, 10}) {
            addTabs(tabs, added);
            QCOMPARE(isShown(), added == 10);
        }
        for (const int width : {2000, 200}) {
            tabs.resize(width, 200);
            QCOMPARE(isShown(), width == 200);
        }
        tabs.clear();
        addTabs(tabs, 3);
        tabs.resize(600, 200);
        QVERIFY(!isShown());
        tabs.setTabText(1, QString(200, QLatin1Char('x')));
        QTRY_VERIFY(isShown());
    }

    void menuFollowsTheTabs()
    {
        ExtendedTabWidget tabs(nullptr);
        addTabs(tabs, 2);
        tabs.setMode(ExtendedTabWidget::TabMenu);
        QCOMPARE(menuText(tabs), QString("Region 0*,Region 1"));
        tabs.insertTab(0, new QWidget, QString("First"));
        QCOMPARE(menuText(tabs), QString("First,Region 0*,Region 1"));
        tabs.setCurrentIndex(2);
        QCOMPARE(menuText(tabs), QString("First,Region 0,Region 1*"));
        tabs.removeTab(1);
        QCOMPARE(menuText(tabs), QString("First,Region 1*"));
        button(tabs, Qt::TopRightCorner)->menu()->actions().constFirst()->trigger();
        QCOMPARE(tabs.currentIndex(), 0);
        button(tabs, Qt::TopRightCorner)->menu()->actions().constFirst()->trigger();
        QCOMPARE(menuText(tabs), QString("First*,Region 1"));
    }

    void mousePressEnds_data()
    {
        using Act = std::function<void(QSpinBox&)>;
        const DataTable row([](bool pressed, int released, const Act& act) {
            QWidget window;
            auto* field = new QSpinBox(&window);
            QSpinBoxMouseEventFilter filter(nullptr);
            field->installEventFilter(&filter);
            field->resize(100, 30);
            window.show();
            QSignalSpy releases(&filter, &QSpinBoxMouseEventFilter::mouseReleased);
            QTest::mousePress(field, Qt::LeftButton, {}, {95, 5});
            QCOMPARE(field->value(), 1); // the field itself was not left out
            act(*field);
            QCOMPARE(filter.isMousePressed(), pressed);
            QCOMPARE(releases.count(), released);
            field->setParent(&window);
        });
        const auto release = [](QSpinBox& field) {
            QTest::mouseRelease(&field, Qt::LeftButton, {}, {95, 5});
        };
        row("held", true, 0, [](QSpinBox&) {});
        row("released", false, 1, release);
        row("double click", true, 1, [=](QSpinBox& field) {
            release(field);
            QMouseEvent event(QEvent::MouseButtonDblClick, QPointF(95, 5), Qt::LeftButton,
                              Qt::LeftButton, {});
            QCoreApplication::sendEvent(&field, &event);
        });
        row("hidden", false, 0, [](QSpinBox& field) { field.hide(); });
        row("disabled", false, 0, [](QSpinBox& field) { field.setEnabled(false); });
        row("taken out", false, 0, [](QSpinBox& field) { field.setParent(nullptr); });
        row("other window", false, 0, [](QSpinBox& field) {
            QEvent event(QEvent::WindowDeactivate);
            QCoreApplication::sendEvent(field.window(), &event);
        });
    }
    void mousePressEnds() { runRow(); }
};

QTEST_MAIN(WidgetsTest)
#include "WidgetsTest.moc"

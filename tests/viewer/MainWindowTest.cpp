#include "MainWindow.h"
#include "CameraFinder.h"
#include "CameraSession.h"
#include "DataTable.h"
#include "FeatureTablePane.h"
#include "SimulatedSource.h"
#include "UserInput.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QDockWidget>
#include <QFile>
#include <QFontInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

/// The window as it is first shown where there is room for it.
struct Fixture
{
    explicit Fixture(const QString& camera = {})
        : window(MODULE_PATH, nullptr)
    {
        window.resize(1400, 900);
        window.show();
        if (!camera.isEmpty())
            window.openCamera(camera);
        QApplication::setActiveWindow(&window);
        QTest::qWait(1);
    }

    template <typename Widget = QWidget> Widget* find(const char* name) const
    {
        const auto all = window.findChildren<Widget*>(QString(name));
        for (Widget* widget : all)
            if (widget->isVisible())
                return widget;
        return nullptr;
    }

    MainWindow window;
};

/// Where each named widget that can be seen lies in the window, one a line, in the order of names.
QStringList layoutOf(const QWidget& window)
{
    QStringList lines;
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const QString name = widget->objectName();
        const QRect place(widget->mapTo(&window, QPoint(0, 0)), widget->size());
        if (!name.isEmpty() && !name.startsWith("qt_") && !widget->visibleRegion().isEmpty())
            lines << QString("%1 %2 %3 %4 %5")
                         .arg(name, QString::number(place.x()), QString::number(place.y()),
                              QString::number(place.width()), QString::number(place.height()));
    }
    lines.sort();
    return lines;
}

/// Fonts are rendered alike on one system, and nearly so on the next.
bool isNear(const QString& line, const QString& other)
{
    constexpr int tolerance = 3;
    const QStringList a = line.split(' ');
    const QStringList b = other.split(' ');
    bool near = a.size() == b.size() && a.front() == b.front();
    for (int part = 1; near && part < a.size(); ++part)
        near = qAbs(a[part].toInt() - b[part].toInt()) <= tolerance;
    return near;
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_settings.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        QCoreApplication::setOrganizationName("viewertest");
        QApplication::setFont(QFont("DejaVu Sans", 10));
        MainWindow::setDark(false);
    }

    /// A layout that is meant to change is written by running this test with WRITE_LAYOUT=1.
    void layoutIsAsDecided_data()
    {
        const DataTable row([](const QString& camera, const QString& tab) {
#ifdef Q_OS_WIN
            QSKIP("Fonts are rendered otherwise.");
#endif
            if (QFontInfo(QApplication::font()).family() != "DejaVu Sans")
                QSKIP("The layout is that of DejaVu Sans.");
            const Fixture f(camera);
            QCOMPARE(selectTab(f.window.centralWidget()->window(), tab), QString());
            QTest::qWait(300);
            QFile file(QString(LAYOUT_FOLDER "/%1.txt").arg(QTest::currentDataTag()));
            if (qEnvironmentVariableIsSet("WRITE_LAYOUT")) {
                QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Text));
                QTextStream(&file) << layoutOf(f.window).join('\n') << '\n';
                return;
            }
            QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
            const QStringList decided
                = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
            const auto difference = [&] {
                const QStringList lines = layoutOf(f.window);
                for (int line = 0; line < qMax(lines.size(), decided.size()); ++line)
                    if (!isNear(lines.value(line), decided.value(line)))
                        return "is " + lines.value(line) + ", was " + decided.value(line);
                return QString();
            };
            QTRY_COMPARE(difference(), QString());
        });
        row("region", "current", "AOIWidget");
        row("automatic-functions", "current", "AutoROIWidget");
        row("multiple-regions", "multi-region-6", "MultiROIWidget");
        row("features", "current", "Camera features");
    }
    void layoutIsAsDecided()
    {
        runRow();
    }

    /// Three to one beside the window's colour is a grey of 119.
    void outlinesItsControlsInTheDark()
    {
        Fixture f("current");
        MainWindow::setDark(true);
        const QImage picture = f.window.grab().toImage();
        MainWindow::setDark(false);
        const auto controls = f.window.findChildren<QWidget*>();
        for (const QWidget* control : controls) {
            const bool hasOutline = qobject_cast<const QLineEdit*>(control)
                || qobject_cast<const QPushButton*>(control);
            if (!hasOutline || !control->isEnabled() || control->visibleRegion().isEmpty()
                || qobject_cast<QAbstractSpinBox*>(control->parentWidget()))
                continue;
            const QPoint left = control->mapTo(&f.window, QPoint(0, control->height() / 2));
            int brightest = 0;
            for (int x = 0; x < 3; ++x)
                brightest = qMax(brightest, picture.pixelColor(left + QPoint(x, 0)).lightness());
            QVERIFY2(brightest >= 119, qPrintable(control->objectName()));
        }
    }

    void filterNarrowsTheCameras()
    {
        const Fixture f;
        f.find<QLineEdit>("cameraFilter")->setText("the most THAT");
        const auto* const list = f.window.findChild<QListWidget*>();
        int shown = 0;
        for (int row = 0; row < list->count(); ++row)
            shown += list->item(row)->isHidden() ? 0 : 1;
        QCOMPARE(shown, 1);
    }

    /// Panes behind others come forward; what has no control for the keyboard is passed over.
    void keyGoesRoundThePanes()
    {
        const Fixture f("current");
        f.find("cmbPixelFormat")->setFocus();
        const auto next = [&f](Qt::KeyboardModifiers modifiers) {
            QTest::keyClick(f.window.windowHandle(), Qt::Key_F6, modifiers);
            const QWidget* part = QApplication::focusWidget();
            if (part->visibleRegion().isEmpty())
                return QString("nothing that is seen");
            while (!qobject_cast<const QDockWidget*>(part) && part->parentWidget())
                part = part->parentWidget();
            return part->objectName();
        };
        QStringList panes{"CameraListPaneDock", "LivePaneDock",         "FeatureTablePaneDock",
                          "LogPaneDock",        "FeatureWritePaneDock", ""};
        for (const QString& pane : panes)
            QCOMPARE(next(Qt::NoModifier), pane);
        for (panes.removeLast(); !panes.isEmpty(); panes.removeLast())
            QCOMPARE(next(Qt::ShiftModifier), panes.last());
    }

    void remembersItsLayout()
    {
        const auto logOf = [](const MainWindow& window) {
            return window.findChild<QDockWidget*>("LogPaneDock");
        };
        {
            Fixture f;
            f.window.rememberLayout();
            logOf(f.window)->hide();
            f.window.close();
        }
        Fixture passing; // is not asked to, and changes nothing
        QVERIFY(!logOf(passing.window)->isHidden());
        passing.window.close();

        MainWindow window(MODULE_PATH, nullptr);
        window.rememberLayout();
        window.show();
        QVERIFY(logOf(window)->isHidden());
        QCOMPARE(window.size(), QSize(1400, 900));
        const auto actions = window.findChildren<QAction*>();
        for (QAction* action : actions)
            if (action->text() == "&First layout")
                action->trigger();
        QVERIFY(!logOf(window)->isHidden());
    }

    void tableShowsWhatTheCameraMadeOfAnEdit()
    {
        CameraSession session({}, std::make_unique<SimulatedSource>(QString("current")));
        FeatureTablePane pane;
        pane.setSession(&session);
        pane.resize(600, 400);
        pane.show();
        pane.setSeen(true);
        QApplication::setActiveWindow(&pane);
        const auto* table = pane.findChild<QTableWidget*>(QString("tblFeatures"));
        const auto names = table->model()->match(table->model()->index(0, 0), Qt::UserRole,
                                                 QString("Width"), 1, Qt::MatchExactly);
        const auto shown = [&] { return table->item(names.first().row(), 1)->text().toInt(); };
        const auto open = [&] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the last one
            pane.edit(QString("Width"));
            return table->findChild<QSpinBox*>(QString("editorField"));
        };
        QSpinBox* field = open();
        QVERIFY(field->singleStep() > 1);
        const int aligned = shown() - field->singleStep();
        field->setValue(aligned);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(shown(), aligned);

        // The camera keeps its value, so it has nothing to notify of.
        field = open();
        field->setValue(aligned + 1);
        QCOMPARE(field->value(), aligned + 1);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(shown(), aligned);

        field = open();
        session.camera().writeAsOtherClient(QString("Width"), QString("640"));
        QTest::qWait(700); // the pane gathers for half a second
        QCOMPARE(shown(), aligned);
        QTest::keyClick(field, Qt::Key_Escape);
        QTRY_COMPARE(shown(), 640);
    }

private:
    QTemporaryDir m_settings;
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"

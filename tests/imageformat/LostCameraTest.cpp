#include "CameraPage.h"
#include "DataTable.h"
#include "imageformat/ImageFormatWidget.h"

#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QTabWidget>

#include <algorithm>
#include <functional>

using sim::Operation;

namespace {

/// Whatever fails makes its caller wait.
constexpr std::chrono::milliseconds wait{101};

/// The viewer's page, open on a camera of four pages, with the loss not noticed yet.
struct LostPage : CameraPage<ImageFormatWidget>
{
    LostPage(bool isWhole, int tab)
        : CameraPage("current")
    {
        page->show();
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        isWhole ? camera->lose(wait) : camera->loseValues(wait);
        camera->journal().record(sim::Operations::all());
        camera->journal().clear();
    }

    ~LostPage() { camera->recover(); }

    /// Calls that made their caller wait: to let observers go, which has a time of its own, or all
    /// others.
    int slowCalls(bool areLettingGo = false) const
    {
        const auto entries = camera->journal().entries();
        return int(std::count_if(entries.begin(), entries.end(), [=](const auto& each) {
            return (each.operation == Operation::UnregisterObserver) == areLettingGo
                && (each.result == ZebErrorBadHandle || each.result == ZebErrorTimeout);
        }));
    }

    QTabWidget* tabs = page->findChild<QTabWidget*>();
    QSignalSpy log{page.get(), &ImageFormatWidget::loggingMessage};
};

} // namespace

/// All pages of a camera that does not answer any more: as with the real ones, whose names are
/// still told, and with nothing told at all.
class LostCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void actionsAreShort_data()
    {
        using Action = std::function<void(LostPage&)>;
        const DataTable row([](bool isWhole, int tab, const Action& action) {
            LostPage f(isWhole, tab);
            action(f);
            QVERIFY2(f.slowCalls() <= 4, qPrintable(QString::number(f.slowCalls())));
        });
        const Action showAgain = [](LostPage& f) {
            f.page->hide();
            f.camera->journal().clear();
            f.page->show();
        };
        const Action close = [](LostPage& f) { f.page.reset(); };
        const Action edit = [](LostPage& f) {
            f.page->findChild<QSpinBox*>("spbBinningHorizontal")->setValue(2);
        };
        const Action frame = [](LostPage& f) { emit f.page->receiveFrameSignal(QPixmap(8, 4)); };
        const auto type = [](const char* field) {
            return Action([field](LostPage& f) {
                auto* const box = f.tabs->currentWidget()->findChild<QDoubleSpinBox*>(field);
                box->setValue(box->minimum());
            });
        };
        const auto turnTo
            = [](int tab) { return Action([tab](LostPage& f) { f.tabs->setCurrentIndex(tab); }); };
        row("show", false, 0, showAgain);
        row("show, nothing is told", true, 0, showAgain);
        row("close", false, 0, close);
        row("edit", false, 0, edit);
        row("a frame", false, 0, frame);
        row("type a width", false, 0, type("spinWidth"));
        row("type a limit", false, 1, type("spinExpAutoMin"));
        row("turn to the region", false, 1, turnTo(0));
        row("turn to the automatic region", false, 2, turnTo(1));
        row("turn to the regions", false, 0, turnTo(2));
        row("turn to the regions, nothing is told", true, 0, turnTo(2));
    }
    void actionsAreShort() { runRow(); }

    /// One second goes into the observers of all pages.
    void letsGoInTime()
    {
        LostPage f(true, 0);
        f.page.reset();
        QVERIFY(f.slowCalls(true) > 1 && f.slowCalls(true) <= 10);
    }

    /// A known loss costs one question a second, whatever is shown, and is told once.
    void asksOnceASecond()
    {
        LostPage f(false, 1);
        f.page->updateTimer();
        QCOMPARE(f.slowCalls(), 2);
        QTest::qWait(2400);
        QVERIFY(f.slowCalls() > 2 && f.slowCalls() <= 4);
        QCOMPARE(f.log.size(), 1);
        QCOMPARE(f.log.first().first().value<ZebViewerLogCategory>(), ZebViewerLogMultiRegion);
    }
};

QTEST_MAIN(LostCameraTest)
#include "LostCameraTest.moc"

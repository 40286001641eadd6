#include "DataTable.h"
#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"
#include "imageformat/ImageFormatWidget.h"

#include "simulator/Model.h"

#include <QSpinBox>
#include <QTabWidget>

#include <functional>

using sim::Operation;

namespace {

/// Whatever fails makes its caller wait.
constexpr std::chrono::milliseconds wait{110};

/// The viewer's page, open on a camera of four pages, with the loss not noticed yet.
struct LostPage
{
    explicit LostPage(const char* model, bool isWhole, int tab)
        : camera(sim::createCamera(model))
    {
        page = std::make_unique<ImageFormatWidget>(featureList(*camera), nullptr);
        QObject::connect(page.get(), &ImageFormatWidget::loggingMessage, page.get(),
                         [this](ZebViewerLogCategory category, const QString& text) {
                             log.append(qMakePair(int(category), text));
                         });
        tabs = page->findChild<QTabWidget*>();
        page->show();
        tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        isWhole ? camera->lose(wait) : camera->loseValues(wait);
        camera->journal().clear();
    }

    /// Calls that make their caller wait; with observers let go within the time allowed for it.
    int slowCalls() const
    {
        const auto& journal = camera->journal();
        int count = 0;
        for (const sim::JournalEntry& entry : journal.entries())
            count += entry.result == ZebErrorBadHandle || entry.result == ZebErrorTimeout ? 1 : 0;
        return count - int(journal.entries({Operation::UnregisterObserver}).size());
    }

    std::unique_ptr<sim::Camera> camera;
    std::unique_ptr<ImageFormatWidget> page;
    QTabWidget* tabs;
    QList<QPair<int, QString>> log;
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
            LostPage f("multi-region", isWhole, tab);
            f.camera->journal().record(sim::Operations::all());
            action(f);
            QVERIFY2(f.slowCalls() <= 4, qPrintable(QString::number(f.slowCalls())));
        });
        const Action hide = [](LostPage& f) { f.page->hide(); };
        const Action showAgain = [](LostPage& f) {
            f.page->hide();
            f.camera->journal().clear();
            f.page->show();
        };
        const Action close = [](LostPage& f) { f.page.reset(); };
        const Action tick = [](LostPage& f) { f.page->updateTimer(); };
        const Action edit = [](LostPage& f) {
            f.page->findChild<QSpinBox*>("spbBinningHorizontal")->setValue(2);
        };
        for (const bool isWhole : {false, true}) {
            const QString kind = isWhole ? "%1, nothing is told" : "%1, names are told";
            const auto name = [&](const char* text) { return kind.arg(text).toUtf8(); };
            row(name("hide"), isWhole, 0, hide);
            row(name("show"), isWhole, 0, showAgain);
            row(name("close"), isWhole, 0, close);
            row(name("tick"), isWhole, 0, tick);
            row(name("edit"), isWhole, 0, edit);
            for (int tab = 0; tab < 3; ++tab)
                row(name(qPrintable(QString("turn to %1").arg(tab))), isWhole, (tab + 1) % 3,
                    Action([tab](LostPage& f) { f.tabs->setCurrentIndex(tab); }));
        }
    }
    void actionsAreShort() { runRow(); }

private:
    MessageHandlerGuard m_guard;
};

QTEST_MAIN(LostCameraTest)
#include "LostCameraTest.moc"

#include "page/BaseTabPluginWidget.h"
#include "DataTable.h"
#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"
#include "page/TENotSupported.h"

#include <QFontComboBox>
#include <QSpinBox>

#include <functional>

using sim::Failure;
using sim::NotificationSettings;
using sim::Operation;

namespace {

struct SmallCamera : sim::Camera
{
    explicit SmallCamera(const char* vendor = "Brontax Vision GmbH")
        : Camera({sim::stringFeature("DeviceVendorName", vendor), sim::integerFeature("Width", 640),
                  sim::integerFeature("Height", 480),
                  sim::enumFeature("PixelFormat", {"Mono8", "Mono12"})})
    {
        setNotifications(NotificationSettings::synchronous());
    }
    int observers() const { return int(observerCount()); }
};

/// Lists with holes have been seen.
BaseTabPluginWidget::FeatureList withNullPointer(const BaseTabPluginWidget::FeatureList& features)
{
    features->insert(1, ZebCPP::FeaturePtr());
    return features;
}

/// Observes Width and Height; a refresh records the names and may do more.
class Page : public BaseTabPluginWidget
{
public:
    explicit Page(const sim::Camera& camera, QWidget* parent = nullptr)
        : BaseTabPluginWidget(withNullPointer(featureList(camera)), parent)
    {
        observedFeatures = QStringList{"Width", "Height"};
    }

    using BaseTabPluginWidget::cameraFeatures;
    using BaseTabPluginWidget::changedFeatures;
    using BaseTabPluginWidget::eventFilter;
    using BaseTabPluginWidget::featureManager;
    using BaseTabPluginWidget::refreshTimer;
    using BaseTabPluginWidget::resumeUpdates;
    using BaseTabPluginWidget::suspendUpdates;

    QList<QStringList> refreshes;
    std::function<void()> duringRefresh;
    int losses = 0;

protected:
    void refreshFeatures() override
    {
        refreshes.append(*changedFeatures);
        if (duringRefresh)
            duringRefresh();
    }
    void onPaletteChanged(QEvent*) override { }
    void reportLoss(const QString& message) override
    {
        ++losses;
        BaseTabPluginWidget::reportLoss(message);
    }
};

struct OpenPage
{
    OpenPage() { page.show(); }

    SmallCamera camera;
    Page page{camera};
};

const char* const width = "Width";
const char* const height = "Height";

} // namespace

class BaseTabPluginWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void refusesOtherVendors()
    {
        for (const QByteArray& vendor :
             QByteArrayList{"BrontaxVision", "brontax", "An Brontax", ""}) {
            const SmallCamera camera(vendor.constData());
            qint32 code = 0;
            try {
                const Page page(camera);
            } catch (const TENotSupported& exception) {
                code = exception.code();
                QCOMPARE(exception.function(), "BaseTabPluginWidget::BaseTabPluginWidget");
            }
            QCOMPARE(code, vendor.startsWith("Brontax") ? 0 : 4);
        }
    }

    void wheelGuard()
    {
        OpenPage p;
        const auto isGuarded = [&p](QObject* target, QEvent::Type type) {
            QEvent event(type);
            const bool isTaken = p.page.eventFilter(target, &event);
            return isTaken && !event.isAccepted();
        };
        QComboBox comboBox;
        QSpinBox spinBox;
        QDoubleSpinBox doubleSpinBox;
        QFontComboBox derived;
        for (QWidget* field : QWidgetList{&comboBox, &spinBox, &doubleSpinBox})
            QVERIFY(isGuarded(field, QEvent::Wheel));
        QVERIFY(!isGuarded(&derived, QEvent::Wheel));
        QVERIFY(!isGuarded(p.page.refreshTimer, QEvent::Wheel));
        QVERIFY(!isGuarded(&spinBox, QEvent::Enter));
    }

    void gathersChangesOnceEach()
    {
        SmallCamera camera;
        camera.setNotifications(NotificationSettings::asynchronous());
        Page page(camera);
        page.show();
        QCOMPARE(page.refreshes.size(), 1); // at once, before any tick
        page.updateTimer();
        QCOMPARE(page.refreshes.last(), QStringList({width, height}));

        for (int i = 0; i < 50; ++i)
            camera.writeAsOtherClient("Height", 100 + i);
        camera.writeAsOtherClient("PixelFormat", "Mono12"); // not observed
        camera.flushNotifications();
        QCoreApplication::processEvents();
        page.updateTimer();
        QCOMPARE(page.refreshes.last(), QStringList({height}));
        QVERIFY(page.changedFeatures->isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(page.refreshes.size(), 4, 1500); // the timer's own tick

        camera.writeAsOtherClient("Width", 100);
        camera.flushNotifications();
        QCoreApplication::processEvents();
        page.hide(); // discards what was gathered
        QVERIFY(page.changedFeatures->isEmpty());
        QVERIFY(!page.refreshTimer->isActive());
        page.show();
        QCOMPARE(page.refreshes.last(), QStringList());
    }

    /// A refresh that writes gets its own change back while the list is held; QtTest's own timeout
    /// is the watchdog.
    void neverBlocksOnNotifications()
    {
        auto busy = NotificationSettings::synchronous();
        busy.onRegistration = true;
        busy.lateAfterUnregistration = true;
        busy.repeats = 20;
        for (const auto& settings :
             {NotificationSettings::off(), NotificationSettings::synchronous(),
              NotificationSettings::asynchronous(), busy}) {
            SmallCamera camera;
            camera.setNotifications(settings);
            Page page(camera);
            page.duringRefresh
                = [&page] { page.featureManager->SetValue(width, 700 + page.refreshes.size()); };
            page.show();
            page.updateTimer();
            camera.flushNotifications();
            QCoreApplication::processEvents();
            const bool isTold = settings.mode != NotificationSettings::Mode::Off;
            QCOMPARE(page.changedFeatures->contains(width), isTold);
            page.updateTimer();
            QCOMPARE(page.refreshes.last().contains(width), isTold);
            page.hide();
            camera.flushNotifications();
            QCOMPARE(camera.observers(), 0);
        }
    }

    void leavesNoObserver_data()
    {
        using Event = std::function<void(SmallCamera&, Page&)>;
        const DataTable row([](const Event& event) {
            for (const bool isHidden : {true, false}) {
                SmallCamera camera;
                auto page = std::make_unique<Page>(camera);
                page->show();
                QCOMPARE(camera.observers(), 2);
                event(camera, *page);
                if (isHidden)
                    page->hide();
                page.reset();
                QCOMPARE(camera.observers(), 0);
            }
        });
        const auto failing = [](Operation operation, const Failure& failure) {
            return
                [=](SmallCamera& camera, Page&) { camera.failures().add("*", operation, failure); };
        };
        row("observed by hand", [](SmallCamera&, Page& page) {
            page.hide();
            page.registerObservers(true);
        });
        row("names differ", failing(Operation::GetName, Failure::of(Failure::Kind::Unterminated)));
        row("denies", failing(Operation::UnregisterObserver, Failure::of(Failure::Kind::Report)));
        row("refuses once", [](SmallCamera& camera, Page& page) {
            camera.failures().add("*", Operation::UnregisterObserver, Failure::refuse(),
                                  sim::Occurrence::nth(1));
            page.suspendUpdates();
        });
        row("the viewer empties its list",
            [](SmallCamera&, Page& page) { page.cameraFeatures->clear(); });
    }
    void leavesNoObserver() { runRow(); }

    /// A camera that is back is observed and read anew, also when what failed last stays away.
    void asksALostCameraNoMore()
    {
        constexpr std::chrono::milliseconds wait{110};
        SmallCamera camera;
        auto page = std::make_unique<Page>(camera);
        auto* const inner = new Page(camera, page.get());
        page->show();
        const int refreshes = page->refreshes.size();
        camera.loseValues(wait);
        page->featureManager->GetValue(height);
        inner->featureManager->GetValue(width);
        camera.journal().clear();
        page->updateTimer();
        inner->updateTimer();
        page->hide();
        page->show();
        QCOMPARE(int(camera.journal().count(Operation::GetValue)), 0);
        QCOMPARE(page->refreshes.size(), refreshes);
        QCOMPARE(page->losses, 1);

        camera.recover();
        auto slow = Failure::refuse();
        slow.delay = wait;
        camera.failures().add(width, Operation::GetValue, slow);
        QTRY_COMPARE_WITH_TIMEOUT(page->refreshes.size(), refreshes + 1, 4000);
        QVERIFY(page->refreshes.last().contains(width));
        QCOMPARE(int(camera.observerCount(height)), 2);
    }

    /// Observers are let go for one second of failing calls; what is left is asked later.
    void partsPatiently()
    {
        OpenPage p;
        auto& [camera, page] = p;
        auto slow = Failure::refuse();
        slow.delay = std::chrono::milliseconds(1050);
        camera.failures().add("*", Operation::UnregisterObserver, slow);
        page.hide();
        QCOMPARE(int(camera.journal().count(Operation::UnregisterObserver)), 1);
        QCOMPARE(camera.observers(), 2);
        camera.writeAsOtherClient(width, 7);
        QVERIFY(page.changedFeatures->isEmpty()); // what is left is heard no more
    }

    void suspends()
    {
        OpenPage p;
        auto& [camera, page] = p;
        page.updateTimer();
        page.suspendUpdates();
        page.suspendUpdates();
        QCOMPARE(camera.observers(), 0);
        page.OnFeatureChanged(width, QString());
        const int before = page.refreshes.size();
        page.updateTimer();
        QCOMPARE(page.refreshes.size(), before);
        page.resumeUpdates(false);
        QVERIFY(!page.refreshTimer->isActive());
        page.resumeUpdates(false);
        QVERIFY(page.refreshTimer->isActive());
        QCOMPARE(camera.observers(), 2);
        QCOMPARE(*page.changedFeatures, QStringList({width}));

        page.suspendUpdates();
        page.hide(); // ends the suspension
        page.resumeUpdates(true);
        QCOMPARE(camera.observers(), 0);
        page.show();
        QCOMPARE(camera.observers(), 2);
    }

    void fillsComboBoxes()
    {
        OpenPage p;
        auto& [camera, page] = p;
        QComboBox comboBox;
        QSignalSpy changed(&comboBox, &QComboBox::currentTextChanged);

        QVERIFY(page.fillComboBox("PixelFormat", &comboBox, true));
        QCOMPARE(comboBox.currentText(), QString("Mono8"));
        QCOMPARE(comboBox.itemData(1, Qt::ToolTipRole).toString(), QString("Mono12"));
        camera.failures().add("PixelFormat", Operation::GetValue, Failure::value("Odd"));
        QVERIFY(!page.fillComboBox("PixelFormat", &comboBox, false));
        QCOMPARE(comboBox.currentIndex(), -1);
        QCOMPARE(comboBox.count(), 2);
        QCOMPARE(changed.size(), 0);
        QVERIFY(!comboBox.signalsBlocked());
    }

private:
    MessageHandlerGuard m_guard;
};

QTEST_MAIN(BaseTabPluginWidgetTest)
#include "BaseTabPluginWidgetTest.moc"

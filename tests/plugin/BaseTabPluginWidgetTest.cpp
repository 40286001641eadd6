#include "plugin/BaseTabPluginWidget.h"
#include "MessageHandlerGuard.h"
#include "SimulatedCamera.h"
#include "plugin/TENotSupported.h"

#include <QComboBox>
#include <QtTest>

#include <functional>

using sim::NotificationSettings;

Q_DECLARE_METATYPE(sim::NotificationSettings)

namespace {

sim::FeatureDescriptions smallCamera(const char* vendor = "Brontax Vision GmbH")
{
    return {sim::stringFeature("DeviceVendorName", vendor), sim::integerFeature("Width", 640),
            sim::integerFeature("Height", 480),
            sim::enumFeature("PixelFormat", {"Mono8", "Mono12"})};
}

// Lists with holes have been seen.
BaseTabPluginWidget::FeatureList withNullPointer(const BaseTabPluginWidget::FeatureList& features)
{
    features->insert(1, ZebCPP::FeaturePtr());
    return features;
}

// Observes Width and Height; a refresh records the names and may do more.
class Page : public BaseTabPluginWidget
{
public:
    explicit Page(const sim::Camera& camera, QWidget* parent = nullptr)
        : BaseTabPluginWidget(withNullPointer(featureList(camera)), parent)
    {
        observedFeatures = QStringList{QStringLiteral("Width"), QStringLiteral("Height")};
    }

    using BaseTabPluginWidget::changedFeatures;
    using BaseTabPluginWidget::featureManager;
    using BaseTabPluginWidget::isDarkMode;
    using BaseTabPluginWidget::refreshTimer;
    using BaseTabPluginWidget::resumeUpdates;
    using BaseTabPluginWidget::suspendUpdates;

    QList<QStringList> refreshes;
    std::function<void()> duringRefresh;
    int paletteChanges = 0;

protected:
    void refreshFeatures() override
    {
        refreshes.append(*changedFeatures);
        if (duringRefresh)
            duringRefresh();
    }
    void onPaletteChanged(QEvent*) override { ++paletteChanges; }
};

const QString width = QStringLiteral("Width");
const QString height = QStringLiteral("Height");

} // namespace

class BaseTabPluginWidgetTest : public QObject
{
    Q_OBJECT

private slots:
    void refusesOtherVendors_data();
    void refusesOtherVendors();
    void gathersChangesOnceEach();
    void discardsChangesWhenHidden();
    void neverBlocksOnNotifications_data();
    void neverBlocksOnNotifications();
    void survivesNestedEventsDuringRefresh();
    void leavesNoObserver();
    void leavesNoObserverOnAForgetfulCamera_data();
    void leavesNoObserverOnAForgetfulCamera();
    void asksALostCameraNoMore();
    void suspends();
    void fillsComboBoxes();
    void tellsPaletteChanges();

private:
    MessageHandlerGuard m_guard;
};

void BaseTabPluginWidgetTest::refusesOtherVendors_data()
{
    QTest::addColumn<QByteArray>("vendor");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("name alone") << QByteArray("Brontax") << true;
    QTest::newRow("with a suffix") << QByteArray("BrontaxVision") << true;
    QTest::newRow("lower case") << QByteArray("brontax") << false;
    QTest::newRow("other") << QByteArray("Other Brontax") << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void BaseTabPluginWidgetTest::refusesOtherVendors()
{
    QFETCH(QByteArray, vendor);
    const sim::Camera camera(smallCamera(vendor.constData()));
    QWidget parent;
    qint32 code = 0;
    try {
        new Page(camera, &parent);
    } catch (const TENotSupported& exception) {
        code = exception.code();
        QCOMPARE(exception.function(), QStringLiteral("BaseTabPluginWidget::BaseTabPluginWidget"));
    }
    QTEST(code == 0, "accepted");
    QCOMPARE(code, code == 0 ? 0 : 4);
    QCOMPARE(parent.children().isEmpty(), code != 0);
}

void BaseTabPluginWidgetTest::gathersChangesOnceEach()
{
    sim::Camera camera(smallCamera());
    camera.setNotifications(NotificationSettings::asynchronous());
    Page page(camera);
    page.show();
    QCOMPARE(page.refreshes.size(), 1); // at once, before any tick
    QCOMPARE(*page.changedFeatures, QStringList({width, height}));
    page.updateTimer();
    QCOMPARE(page.refreshes.last(), QStringList({width, height}));

    for (int i = 0; i < 50; ++i)
        camera.writeAsOtherClient("Height", 100 + i);
    camera.writeAsOtherClient("PixelFormat", "Mono12"); // not observed
    camera.flushNotifications();
    QCoreApplication::processEvents();
    QCOMPARE(*page.changedFeatures, QStringList({height}));
    page.updateTimer();
    QCOMPARE(page.refreshes.last(), QStringList({height}));
    QVERIFY(page.changedFeatures->isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(page.refreshes.size(), 4, 1500); // the timer's own tick
}

void BaseTabPluginWidgetTest::discardsChangesWhenHidden()
{
    sim::Camera camera(smallCamera());
    camera.setNotifications(NotificationSettings::synchronous());
    Page page(camera);
    page.show();
    camera.writeAsOtherClient("Width", 100);
    page.hide();
    QVERIFY(page.changedFeatures->isEmpty());
    QVERIFY(!page.refreshTimer->isActive());
    page.show();
    QCOMPARE(page.refreshes.last(), QStringList());
}

void BaseTabPluginWidgetTest::neverBlocksOnNotifications_data()
{
    QTest::addColumn<sim::NotificationSettings>("settings");
    QTest::newRow("off") << NotificationSettings::off();
    QTest::newRow("before the write returns") << NotificationSettings::synchronous();
    QTest::newRow("later, on another thread") << NotificationSettings::asynchronous();
    auto busy = NotificationSettings::synchronous();
    busy.onRegistration = true;
    busy.lateAfterUnregistration = true;
    busy.repeats = 20;
    QTest::newRow("at registration, in bursts, late") << busy;
}

// A refresh that writes gets its own change back while the list is held; QtTest's own timeout is
// the watchdog.
void BaseTabPluginWidgetTest::neverBlocksOnNotifications()
{
    QFETCH(sim::NotificationSettings, settings);
    sim::Camera camera(smallCamera());
    camera.setNotifications(settings);
    Page page(camera);
    page.duringRefresh
        = [&page] { page.featureManager->SetValue(width, 700 + page.refreshes.size()); };

    page.show();
    page.updateTimer();
    camera.flushNotifications();
    QCoreApplication::processEvents();
    QCOMPARE(page.changedFeatures->contains(width),
             settings.mode != NotificationSettings::Mode::Off);
    page.updateTimer();
    QCOMPARE(page.refreshes.last().contains(width),
             settings.mode != NotificationSettings::Mode::Off);
    page.hide();
    camera.flushNotifications();
    QCOMPARE(int(camera.observerCount()), 0);
}

void BaseTabPluginWidgetTest::survivesNestedEventsDuringRefresh()
{
    sim::Camera camera(smallCamera());
    camera.setNotifications(NotificationSettings::synchronous());
    Page page(camera);
    page.show();
    page.duringRefresh = [&] {
        page.updateTimer(); // a tick delivered by a nested event loop returns
        page.hide();
        page.show();
        camera.writeAsOtherClient("Height", 100 + page.refreshes.size());
    };
    const int before = page.refreshes.size();
    page.updateTimer();
    QCOMPARE(page.refreshes.size(), before + 1);
    QCOMPARE(*page.changedFeatures, QStringList({width, height})); // those of the show, too
    QVERIFY(page.refreshTimer->isActive());
    QCOMPARE(int(camera.observerCount("Height")), 1);
}

void BaseTabPluginWidgetTest::leavesNoObserver()
{
    sim::Camera camera(smallCamera());
    QWidget window;
    auto page = std::make_unique<Page>(camera, &window);
    QCOMPARE(int(camera.observerCount()), 0);
    window.show();
    QCOMPARE(int(camera.observerCount()), 2);
    window.hide();
    QCOMPARE(int(camera.observerCount()), 0);
    window.show();
    page.reset(); // while visible: no hide event comes
    QCOMPARE(int(camera.observerCount()), 0);

    page = std::make_unique<Page>(camera);
    page->registerObservers(true);
    QCOMPARE(*page->changedFeatures, QStringList({width, height}));
    page.reset();
    QCOMPARE(int(camera.observerCount()), 0);
}

void BaseTabPluginWidgetTest::leavesNoObserverOnAForgetfulCamera_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("once");
    const auto row = [](const char* name, sim::Operation operation, sim::Failure::Kind kind,
                        bool once) { QTest::newRow(name) << int(operation) << int(kind) << once; };
    row("names fail", sim::Operation::GetName, sim::Failure::Kind::Refuse, false);
    row("names differ", sim::Operation::GetName, sim::Failure::Kind::Unterminated, false);
    row("refuses once", sim::Operation::UnregisterObserver, sim::Failure::Kind::Refuse, true);
    row("denies", sim::Operation::UnregisterObserver, sim::Failure::Kind::Report, false);
}

void BaseTabPluginWidgetTest::leavesNoObserverOnAForgetfulCamera()
{
    QFETCH(int, operation);
    QFETCH(int, kind);
    QFETCH(bool, once);
    sim::Camera camera(smallCamera());
    auto page = std::make_unique<Page>(camera);
    page->show();
    QCOMPARE(int(camera.observerCount()), 2);
    camera.failures().add(sim::FailureInjector::anyFeature, static_cast<sim::Operation>(operation),
                          sim::Failure::of(static_cast<sim::Failure::Kind>(kind)),
                          once ? sim::Occurrence::nth(1) : sim::Occurrence::always());
    page->hide();
    page.reset();
    QCOMPARE(int(camera.observerCount()), 0);
}

void BaseTabPluginWidgetTest::asksALostCameraNoMore()
{
    constexpr std::chrono::milliseconds wait{150};
    sim::Camera camera(smallCamera());
    auto page = std::make_unique<Page>(camera);
    auto* const inner = new Page(camera, page.get());
    page->show();
    const int refreshes = page->refreshes.size();
    // A camera that fails quickly is asked on.
    camera.failures().add("Width", sim::Operation::GetValue, sim::Failure::refuse(),
                          sim::Occurrence{1, 9, 1.0, 0});
    for (int i = 0; i < 9; ++i)
        QCOMPARE(page->featureManager->GetValue(width), -1.0);
    QCOMPARE(page->featureManager->GetValue(width), 640.0);

    camera.lose(wait);
    camera.journal().clear();
    page->featureManager->GetFeatureNames();
    QCOMPARE(int(camera.journal().count()), 2);
    page->updateTimer();
    inner->updateTimer();
    QCOMPARE(page->refreshes.size(), refreshes);
    page->hide();
    page->show();
    QCOMPARE(int(camera.journal().count()), 2);

    camera.recover();
    QTRY_COMPARE_WITH_TIMEOUT(page->refreshes.size(), refreshes + 1, 8000);
    QVERIFY(page->refreshes.last().contains(width));
    QVERIFY(camera.observerCount() > 0);
    camera.lose(wait);
    page->featureManager->GetFeatureNames();
    camera.journal().clear();
    page.reset();
    QCOMPARE(int(camera.journal().count()), 0);
}

void BaseTabPluginWidgetTest::suspends()
{
    sim::Camera camera(smallCamera());
    camera.setNotifications(NotificationSettings::synchronous());
    Page page(camera);
    page.resumeUpdates(true); // one too many does nothing
    QCOMPARE(int(camera.observerCount()), 0);
    page.show();
    page.updateTimer();

    page.suspendUpdates();
    page.suspendUpdates();
    QCOMPARE(int(camera.observerCount()), 0);
    page.OnFeatureChanged(width, QString());
    const int before = page.refreshes.size();
    page.updateTimer();
    QCOMPARE(page.refreshes.size(), before);
    QCOMPARE(*page.changedFeatures, QStringList({width}));
    page.resumeUpdates(false);
    QVERIFY(!page.refreshTimer->isActive());
    page.resumeUpdates(false);
    QVERIFY(page.refreshTimer->isActive());
    QCOMPARE(int(camera.observerCount()), 2);
    QCOMPARE(*page.changedFeatures, QStringList({width}));

    page.suspendUpdates();
    page.hide(); // ends the suspension
    page.resumeUpdates(true);
    QCOMPARE(int(camera.observerCount()), 0);
    page.show();
    QCOMPARE(int(camera.observerCount()), 2);
}

void BaseTabPluginWidgetTest::fillsComboBoxes()
{
    sim::Camera camera(smallCamera());
    Page page(camera);
    QComboBox comboBox;
    QSignalSpy changed(&comboBox, &QComboBox::currentTextChanged);

    QVERIFY(page.fillComboBox(QStringLiteral("PixelFormat"), &comboBox, true));
    QCOMPARE(comboBox.currentText(), QStringLiteral("Mono8"));
    QCOMPARE(comboBox.itemData(1, Qt::ToolTipRole).toString(), QStringLiteral("Mono12"));
    camera.failures().add("PixelFormat", sim::Operation::GetValue, sim::Failure::value("Odd"));
    QVERIFY(!page.fillComboBox(QStringLiteral("PixelFormat"), &comboBox, false));
    QCOMPARE(comboBox.currentIndex(), -1);
    QCOMPARE(comboBox.count(), 2);
    QCOMPARE(changed.size(), 0);
    QVERIFY(!comboBox.signalsBlocked());
}

void BaseTabPluginWidgetTest::tellsPaletteChanges()
{
    sim::Camera camera(smallCamera());
    const QPalette light = QApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    Page page(camera);

    QApplication::setPalette(dark);
    QVERIFY(page.paletteChanges > 0);
    QVERIFY(Page::isDarkMode());
    QApplication::setPalette(light);
    QVERIFY(!Page::isDarkMode());
}

QTEST_MAIN(BaseTabPluginWidgetTest)
#include "BaseTabPluginWidgetTest.moc"

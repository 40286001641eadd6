#include "simulator/Camera.h"
#include "simulator/State.h"

#include <QtTest>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

using namespace std::chrono_literals;
using sim::Camera;
using sim::createCamera;
using sim::NotificationSettings;

// Who is told of a change, on which thread, and that nobody waits for ever.
class SimulatedNotificationsTest : public QObject
{
    Q_OBJECT

private slots:
    void modes_data();
    void modes();
    void cascades();
    void selectingTellsReaders();
    void unchangedValuesAreSilent();
    void closingDropsWhatWaits();
    void registration();
    void observersReadAndWrite_data();
    void observersReadAndWrite();
    void burstsFromSeveralThreads();
    void manyThreads();
    void closingWhileInUse();
    void closingFromAnObserver();
};

namespace {

class Observer : public ZebCPP::IFeatureObserver
{
public:
    using Action = std::function<void(const ZebCPP::FeaturePtr&)>;

    explicit Observer(Action action = {})
        : m_action(std::move(action))
    {
    }

    void FeatureChanged(const ZebCPP::FeaturePtr& feature) override
    {
        {
            const std::lock_guard lock(m_mutex);
            m_thread = std::this_thread::get_id();
        }
        ++calls;
        if (m_action)
            m_action(feature);
    }

    std::thread::id thread() const
    {
        const std::lock_guard lock(m_mutex);
        return m_thread;
    }

    std::atomic<int> calls{0};

private:
    const Action m_action;
    mutable std::mutex m_mutex;
    std::thread::id m_thread;
};

std::shared_ptr<Observer> observe(const Camera& camera, std::initializer_list<const char*> names,
                                  Observer::Action action = {})
{
    auto observer = std::make_shared<Observer>(std::move(action));
    for (const char* name : names)
        camera.feature(name).pointer()->RegisterObserver(observer);
    return observer;
}

// Runs on a thread of its own: a deadlock is a failed test, not a hung one.
template <typename Body> bool endsInTime(Body body)
{
    std::packaged_task<void()> task(std::move(body));
    std::future<void> done = task.get_future();
    std::thread thread(std::move(task));
    if (done.wait_for(20s) != std::future_status::ready) {
        thread.detach();
        return false;
    }
    thread.join();
    return true;
}

} // namespace

void SimulatedNotificationsTest::modes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("calls");
    QTest::addColumn<bool>("sameThread");

    using Mode = NotificationSettings::Mode;
    QTest::newRow("off") << int(Mode::Off) << 0 << false;
    QTest::newRow("on the writing thread") << int(Mode::Synchronous) << 3 << true;
    QTest::newRow("on the camera's thread") << int(Mode::Asynchronous) << 3 << false;
}

void SimulatedNotificationsTest::modes()
{
    QFETCH(int, mode);
    QFETCH(int, calls);
    QFETCH(bool, sameThread);

    NotificationSettings settings;
    settings.mode = static_cast<NotificationSettings::Mode>(mode);
    settings.repeats = 3;
    const auto camera = createCamera("current");
    camera->setNotifications(settings);
    const auto observer = observe(*camera, {"Gamma"});
    camera->feature("Gamma").pointer()->SetValue(2.0);
    camera->flushNotifications();
    QCOMPARE(int(observer->calls), calls);
    QCOMPARE(camera->notificationCount(), std::uint64_t(calls));
    if (calls > 0)
        QCOMPARE(observer->thread() == std::this_thread::get_id(), sameThread);
}

void SimulatedNotificationsTest::cascades()
{
    const auto camera = createCamera("current");
    NotificationSettings settings = NotificationSettings::synchronous();
    camera->setNotifications(settings);
    const auto written = observe(*camera, {"BinningHorizontal"});
    const auto computed = observe(*camera, {"WidthMax"});
    const auto moved = observe(*camera, {"Width"});
    const auto ranged = observe(*camera, {"OffsetX"});
    const auto foreign = observe(*camera, {"HeightMax", "Gain"});
    camera->writeAsOtherClient("BinningHorizontal", 2);
    QCOMPARE(int(written->calls), 1);
    QCOMPARE(int(computed->calls), 1);
    QCOMPARE(int(moved->calls), 1);
    QCOMPARE(int(ranged->calls), 1);
    QCOMPARE(int(foreign->calls), 0);

    camera->writeAsOtherClient("BinningSelector", "Digital");
    QCOMPARE(int(written->calls), 2); // shows another stage's factor
    QCOMPARE(int(computed->calls), 1);
    camera->setStreaming(true);
    QCOMPARE(int(moved->calls), 2); // locked now

    settings.cascades = false;
    camera->setNotifications(settings);
    camera->setStreaming(false);
    const int before = computed->calls;
    camera->writeAsOtherClient("BinningHorizontal", 3);
    QCOMPARE(int(computed->calls), before);
}

void SimulatedNotificationsTest::selectingTellsReaders()
{
    Camera camera({
        sim::integerFeature("Selector"),
        sim::integerFeature("Number").selectedBy("Selector").startingWith(1, 5),
        sim::integerFeature("Twice").computedAs(
            [](const sim::State& state) { return state.integer("Number") * 2; }),
    });
    camera.setNotifications(NotificationSettings::synchronous());
    const auto observer = observe(camera, {"Twice"});
    camera.writeAsOtherClient("Selector", 1);
    QCOMPARE(camera.feature("Twice").integer(), 10);
    QCOMPARE(int(observer->calls), 1);
    camera.writeAsOtherClient("Selector", 2);
    camera.writeAsOtherClient("Selector", 3);
    QCOMPARE(int(observer->calls), 2);
}

void SimulatedNotificationsTest::unchangedValuesAreSilent()
{
    const auto camera = createCamera("current");
    camera->setNotifications(NotificationSettings::synchronous());
    const auto observer = observe(*camera, {"Width"});
    camera->writeAsOtherClient("Width", 2592);
    camera->writeAsOtherClient("Width", 2591);
    QCOMPARE(int(observer->calls), 0);
}

void SimulatedNotificationsTest::registration()
{
    const auto camera = createCamera("current");
    NotificationSettings settings = NotificationSettings::asynchronous(20ms);
    settings.onRegistration = true;
    settings.lateAfterUnregistration = true;
    camera->setNotifications(settings);

    const auto observer = observe(*camera, {"Width", "Height"});
    QCOMPARE(int(observer->calls), 2);
    QCOMPARE(camera->observerCount(), std::size_t{2});
    const auto width = camera->feature("Width").pointer();
    QCOMPARE(width->RegisterObserver(observer), ZebErrorInvalidAccess);
    QCOMPARE(width->RegisterObserver(nullptr), ZebErrorBadParameter);
    QCOMPARE(width->UnregisterObserver(observer), ZebErrorSuccess);
    QCOMPARE(width->UnregisterObserver(observer), ZebErrorNotFound);
    QCOMPARE(camera->observerCount("Width"), std::size_t{0});
    QCOMPARE(int(observer->calls), 2);
    camera->flushNotifications();
    QCOMPARE(int(observer->calls), 3);
}

void SimulatedNotificationsTest::closingDropsWhatWaits()
{
    auto camera = createCamera("current");
    NotificationSettings settings = NotificationSettings::asynchronous(50ms);
    settings.lateAfterUnregistration = true;
    camera->setNotifications(settings);
    const auto observer = observe(*camera, {"Width"});
    camera->feature("Width").pointer()->SetValue(std::int64_t{640});
    camera->feature("Width").pointer()->UnregisterObserver(observer);
    camera.reset();
    QCOMPARE(observer.use_count(), 1l);
    QTest::qSleep(80);
    QCOMPARE(int(observer->calls), 0);
}

void SimulatedNotificationsTest::observersReadAndWrite_data()
{
    modes_data();
}

void SimulatedNotificationsTest::observersReadAndWrite()
{
    QFETCH(int, mode);
    const bool isFinished = endsInTime([mode] {
        NotificationSettings settings;
        settings.mode = static_cast<NotificationSettings::Mode>(mode);
        settings.onRegistration = true;
        settings.lateAfterUnregistration = true;
        const auto camera = createCamera("current");
        camera->setNotifications(settings);
        const auto gain = camera->feature("Gain").pointer();
        const auto observer
            = observe(*camera, {"Width", "OffsetX"}, [gain](const ZebCPP::FeaturePtr& feature) {
                  std::int64_t value = 0;
                  feature->GetValue(value);
                  gain->SetValue(static_cast<double>(value % 20));
                  feature->SetValue(value - value % 16);
              });
        for (std::int64_t width = 640; width < 1000; width += 8)
            camera->feature("Width").pointer()->SetValue(width);
        camera->feature("Width").pointer()->UnregisterObserver(observer);
        camera->flushNotifications();
    });
    QVERIFY(isFinished);
}

void SimulatedNotificationsTest::burstsFromSeveralThreads()
{
    const auto camera = createCamera("current");
    const auto observer = observe(*camera, {"Width"}, [](const ZebCPP::FeaturePtr& feature) {
        std::int64_t value = 0;
        feature->GetValue(value);
    });
    camera->burst("Width", 5000, 4);
    QCOMPARE(int(observer->calls), 20000);
}

void SimulatedNotificationsTest::manyThreads()
{
    const bool isFinished = endsInTime([] {
        const auto camera = createCamera("current");
        camera->setNotifications(NotificationSettings::asynchronous());
        camera->failures().add("*", sim::Operations::all(), sim::Failure::refuse(),
                               sim::Occurrence::randomly(0.05, 7));
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([&camera, t] {
                const auto observer = std::make_shared<Observer>();
                for (int i = 0; i < 300; ++i) {
                    const auto width = camera->feature("Width").pointer();
                    width->RegisterObserver(observer);
                    width->SetValue(std::int64_t{16 + 8 * (i % 50)});
                    camera->writeAsOtherClient("BinningHorizontal", 1 + (i + t) % 4);
                    camera->setStreaming(i % 3 == 0);
                    camera->snapshot();
                    camera->modify("Gain", [i](auto& gain) { gain.unit = std::to_string(i); });
                    width->UnregisterObserver(observer);
                    camera->journal().writes();
                }
            });
        for (std::thread& thread : threads)
            thread.join();
    });
    QVERIFY(isFinished);
}

void SimulatedNotificationsTest::closingWhileInUse()
{
    const bool isFinished = endsInTime([] {
        auto camera = createCamera("current");
        const auto width = camera->feature("Width").pointer();
        const std::weak_ptr<Observer> observer = observe(*camera, {"Width"});
        std::atomic<bool> isClosed{false};
        std::thread client([&] {
            std::int64_t value = 640;
            while (width->SetValue(value) != ZebErrorBadHandle || !isClosed)
                value = value == 640 ? 800 : 640;
        });
        std::this_thread::sleep_for(20ms);
        camera.reset();
        isClosed = true;
        client.join();

        const auto late = std::make_shared<Observer>();
        std::uint32_t length = 0;
        QCOMPARE(width->RegisterObserver(late), ZebErrorBadHandle);
        QCOMPARE(width->GetName(nullptr, length), ZebErrorBadHandle);
        QVERIFY(observer.expired());
    });
    QVERIFY(isFinished);
}

void SimulatedNotificationsTest::closingFromAnObserver()
{
    const bool isFinished = endsInTime([] {
        for (const bool synchronous : {true, false}) {
            auto camera = createCamera("current");
            camera->setNotifications(synchronous ? NotificationSettings::synchronous()
                                                 : NotificationSettings::asynchronous());
            const auto width = camera->feature("Width").pointer();
            std::promise<void> closed;
            observe(*camera, {"Width"}, [&](const ZebCPP::FeaturePtr&) {
                camera.reset();
                closed.set_value();
            });
            width->SetValue(std::int64_t{640});
            closed.get_future().wait();
            QCOMPARE(width->SetValue(std::int64_t{800}), ZebErrorBadHandle);
        }
    });
    QVERIFY(isFinished);
}

QTEST_APPLESS_MAIN(SimulatedNotificationsTest)
#include "SimulatedNotificationsTest.moc"

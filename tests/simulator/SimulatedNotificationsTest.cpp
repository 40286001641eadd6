#include "DataTable.h"
#include "simulator/Camera.h"
#include "simulator/State.h"

#include <atomic>
#include <thread>

using namespace std::chrono_literals;
using sim::Camera;
using sim::createCamera;
using sim::NotificationSettings;

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
        thread = std::this_thread::get_id();
        ++calls;
        if (m_action)
            m_action(feature);
    }

    std::atomic<std::thread::id> thread;
    std::atomic<int> calls{0};

private:
    const Action m_action;
};

std::shared_ptr<Observer> observe(const Camera& camera, std::initializer_list<const char*> names,
                                  Observer::Action action = {})
{
    auto observer = std::make_shared<Observer>(std::move(action));
    for (const char* name : names)
        camera.feature(name).pointer()->RegisterObserver(observer);
    return observer;
}

} // namespace

/// Who is told of a change, on which thread, and that nobody waits for ever: QtTest's own timeout
/// is the watchdog.
class SimulatedNotificationsTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsOnTheRightThread_data()
    {
        const DataTable row([](NotificationSettings settings, int calls, bool sameThread) {
            settings.repeats = 3;
            const auto camera = createCamera("current");
            camera->setNotifications(settings);
            const auto observer = observe(*camera, {"Gamma"});
            camera->feature("Gamma").pointer()->SetValue(2.0);
            camera->flushNotifications();
            QCOMPARE(int(observer->calls), calls);
            if (calls > 0)
                QCOMPARE(observer->thread == std::this_thread::get_id(), sameThread);
        });
        row("off", NotificationSettings::off(), 0, false);
        row("on the writing thread", NotificationSettings::synchronous(), 3, true);
        row("on the camera's thread", NotificationSettings::asynchronous(2ms), 3, false);
    }
    void tellsOnTheRightThread() { runRow(); }

    void cascades()
    {
        const auto camera = createCamera("current");
        NotificationSettings settings = NotificationSettings::synchronous();
        camera->setNotifications(settings);
        // Written, computed from it, moved inside, with another range, and not concerned.
        std::vector<std::shared_ptr<Observer>> observers;
        for (const char* name : {"BinningHorizontal", "WidthMax", "Width", "OffsetX", "HeightMax"})
            observers.push_back(observe(*camera, {name}));
        const auto calls = [&observers] {
            QVector<int> result;
            for (const auto& observer : observers)
                result << observer->calls;
            return result;
        };
        camera->writeAsOtherClient("Width", 2592); // as it is
        camera->writeAsOtherClient("Width", 2591); // refused
        camera->writeAsOtherClient("BinningHorizontal", 2);
        QCOMPARE(calls(), (QVector<int>{1, 1, 1, 1, 0}));
        camera->writeAsOtherClient("BinningSelector", "Digital"); // with a factor of its own
        QCOMPARE(calls().mid(0, 3), (QVector<int>{2, 1, 1}));
        camera->setStreaming(true); // locks
        QCOMPARE(calls().at(2), 2);
        settings.cascades = false;
        camera->setNotifications(settings);
        camera->setStreaming(false);
        const int before = calls().at(1);
        camera->writeAsOtherClient("BinningHorizontal", 3);
        QCOMPARE(calls().at(1), before);
    }

    void closingWhileInUse()
    {
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
        std::uint32_t length = 0;
        QCOMPARE(width->RegisterObserver(std::make_shared<Observer>()), ZebErrorBadHandle);
        QCOMPARE(width->GetName(nullptr, length), ZebErrorBadHandle);
        QVERIFY(observer.expired());
    }
};

QTEST_APPLESS_MAIN(SimulatedNotificationsTest)
#include "SimulatedNotificationsTest.moc"

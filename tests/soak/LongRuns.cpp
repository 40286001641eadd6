#include "LongRuns.h"

#include "Host.h"
#include "ProcessState.h"
#include "Report.h"
#include "Watchdog.h"

#include "simulator/Camera.h"
#include "simulator/Model.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QTimer>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <functional>
#include <thread>

#include <time.h>

namespace LongRuns {

namespace {

constexpr std::int64_t toleratedGrowth = 1 << 20;

/// A camera that keeps no list of its calls, which would count as the module's memory.
std::unique_ptr<sim::Camera> quietCamera(const std::string& model)
{
    auto camera = sim::createCamera(model);
    camera->journal().record({});
    return camera;
}

QWidget* openPage(TabExtensionInterface& module, const sim::Camera& camera, Host& host)
{
    const auto features = camera.features();
    const auto list = TabExtensionInterface::FeatureList::create(features.begin(), features.end());
    auto* const page = new QWidget;
    page->setParent(&host);
    const auto connections = Host::connections();
    module.createTab(list, page, &connections);
    host.resize(700, 900);
    page->setGeometry(host.rect());
    page->show();
    host.show();
    return page;
}

void openAndCloseOne(TabExtensionInterface& module, Report& report, const std::string& model)
{
    const auto camera = quietCamera(model);
    {
        Host host;
        openPage(module, *camera, host);
        QCoreApplication::processEvents();
        if (camera->has("Width"))
            camera->writeAsOtherClient("Width", 256);
        camera->flushNotifications(); // on a busy machine its threads would pile up
        QCoreApplication::processEvents();
    }
    // A viewer comes back to its event loop, where these end.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    report[QStringLiteral("pages opened")] += 1;
    report[QStringLiteral("SDK calls")] += camera->journal().count();
    if (camera->observerCount() != 0)
        report.findings.append(QStringLiteral("an observer is left"));
}

double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

void wait(double seconds)
{
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000.0), &loop, &QEventLoop::quit);
    loop.exec();
}

/// The part of the time that this thread runs while its event loop does.
double busyShare(double seconds)
{
    const double before = threadSeconds();
    QElapsedTimer timer;
    timer.start();
    wait(seconds);
    return (threadSeconds() - before) / (1e-3 * static_cast<double>(timer.elapsed()));
}

/// Calls from a thread of its own, as long as it lives.
class EveryMillisecond
{
public:
    explicit EveryMillisecond(std::function<void(int)> call)
        : m_thread([this, call = std::move(call)] {
            auto next = std::chrono::steady_clock::now();
            for (int i = 0; !m_ends; ++i) {
                call(i);
                next += std::chrono::milliseconds(1);
                std::this_thread::sleep_until(next);
            }
        })
    {
    }
    ~EveryMillisecond()
    {
        m_ends = true;
        m_thread.join();
    }
    EveryMillisecond(const EveryMillisecond&) = delete;
    EveryMillisecond& operator=(const EveryMillisecond&) = delete;

private:
    std::atomic<bool> m_ends{false};
    std::thread m_thread;
};

/// Answers a notification with a signal, as a page does, but of no content.
class BareObserver : public ZebCPP::IFeatureObserver
{
public:
    explicit BareObserver(Host& host)
        : m_host(host)
    {
    }
    void FeatureChanged(const ZebCPP::FeaturePtr&) override { emit m_host.streaming(true); }

private:
    Host& m_host;
};

void notify(sim::Camera& camera, int i)
{
    camera.burst(i % 2 ? "Width" : "PixelFormat", 1);
}

/// What the same notifications cost with a slot that does nothing: the thread wakes up, and Qt
/// finds out what for.
double bareBusyShare(sim::Camera& camera, double seconds)
{
    Host sender;
    QObject receiver;
    QObject::connect(&sender, &Host::streaming, &receiver, [](bool) {});
    const auto observer = std::make_shared<BareObserver>(sender);
    const std::array features{camera.feature("Width").pointer(),
                              camera.feature("PixelFormat").pointer()};
    for (const ZebCPP::FeaturePtr& feature : features)
        feature->RegisterObserver(observer);
    double share = 0.0;
    {
        const EveryMillisecond source([&camera](int i) { notify(camera, i); });
        share = busyShare(seconds);
    }
    for (const ZebCPP::FeaturePtr& feature : features)
        feature->UnregisterObserver(observer);
    return share;
}

} // namespace

void openAndClose(TabExtensionInterface& module, Watchdog& watchdog, Report& report, int count)
{
    constexpr int firstLook = 100;
    constexpr std::array models{"current", "dsp", "aoi", "multi-region", "automode-dynamic"};
    // Qt's cache of pictures names them after palettes, of which each page has its own: it fills,
    // and keeps the names of what it drops until a timer of half a minute comes by.
    QPixmapCache::setCacheLimit(0);
    ProcessState before;
    for (int i = 1; i <= count; ++i) {
        watchdog.beat();
        openAndCloseOne(module, report, models[static_cast<std::size_t>(i) % models.size()]);
        if (i % firstLook == 0 || i == count) {
            const ProcessState state = ProcessState::now();
            std::printf("after %d cameras: %s\n", i, qPrintable(state.text()));
            if (i == firstLook)
                before = state;
        }
    }
    const ProcessState after = ProcessState::now();
    if (after.residentBytes - before.residentBytes > toleratedGrowth
        || after.descriptors != before.descriptors || after.timers != before.timers
        || after.translators != before.translators || after.widgets != before.widgets
        || after.hasCursor)
        report.findings.append(QStringLiteral("the process holds more than before"));
}

void storm(TabExtensionInterface& module, Watchdog& watchdog, Report& report, double minutes)
{
    constexpr double busyLimit = 0.02;
    const auto camera = quietCamera("current");
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&watchdog] { watchdog.beat(); });
    heart.start(1000);

    const double bare = bareBusyShare(*camera, std::min(60.0, minutes * 6.0));
    Host host;
    openPage(module, *camera, host);
    const EveryMillisecond source([&camera](int i) { notify(*camera, i); });
    wait(5.0);
    const ProcessState before = ProcessState::now();
    const double busy = busyShare(minutes * 60.0);
    const ProcessState after = ProcessState::now();

    report[QStringLiteral("pages opened")] += 1;
    report[QStringLiteral("notifications")] += camera->notificationCount();
    report[QStringLiteral("SDK calls")] += camera->journal().count();
    std::printf("before: %s\nafter: %s\nGUI thread busy: %.2f %%, with a slot that does nothing: "
                "%.2f %%\n",
                qPrintable(before.text()), qPrintable(after.text()), 100.0 * busy, 100.0 * bare);
    if (busy > busyLimit)
        report.findings.append(QStringLiteral("the GUI thread is too busy"));
    if (after.residentBytes - before.residentBytes > toleratedGrowth)
        report.findings.append(QStringLiteral("memory grows"));
}

} // namespace LongRuns

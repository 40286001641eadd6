#include "LongRuns.h"

#include "Host.h"
#include "ProcessState.h"
#include "Report.h"
#include "VirtualTime.h"
#include "Watchdog.h"

#include "simulator/Camera.h"

#include <QApplication>
#include <QEventLoop>
#include <QPixmapCache>
#include <QTimer>

#include <array>

namespace {

constexpr std::int64_t toleratedGrowth = 1 << 20;

/// A camera that keeps no list of its calls, which would count as the module's memory.
std::unique_ptr<sim::Camera> quietCamera(const std::string& model)
{
    auto camera = sim::createCamera(model);
    camera->journal().record({});
    return camera;
}

std::unique_ptr<Host> openPage(TabExtensionInterface& module, sim::Camera& camera, Report& report)
{
    auto host = std::make_unique<Host>();
    const auto features = camera.features();
    const auto connections = Host::connections();
    auto* const page = new QWidget;
    page->setParent(host.get());
    module.createTab(TabExtensionInterface::FeatureList::create(features.begin(), features.end()),
                     page, &connections);
    host->resize(700, 900);
    page->setGeometry(host->rect());
    page->show();
    host->show();
    report["pages opened"] += 1;
    return host;
}

void openAndCloseOne(TabExtensionInterface& module, Report& report, const std::string& model)
{
    const auto camera = quietCamera(model);
    auto host = openPage(module, *camera, report);
    QCoreApplication::processEvents();
    if (camera->has("Width"))
        camera->writeAsOtherClient("Width", 256);
    camera->flushNotifications(); // on a busy machine its threads would pile up
    QCoreApplication::processEvents();
    host.reset();
    // A viewer comes back to its event loop, where these end.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    report["SDK calls"] += camera->journal().count();
    if (camera->observerCount() != 0)
        report.find("an observer is left");
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
    using Seconds = std::chrono::duration<double>;
    const Seconds busy = Watchdog::guiTime();
    const Seconds real = VirtualTime::real();
    wait(seconds);
    return (Watchdog::guiTime() - busy) / (VirtualTime::real() - real);
}

} // namespace

void LongRuns::openAndClose(TabExtensionInterface& module, Report& report, int count)
{
    constexpr int firstLook = 100;
    constexpr std::array models{"current", "dsp", "aoi", "multi-region", "automode-dynamic"};
    // Qt's cache of pictures names them after palettes, of which each page has its own: it fills,
    // and keeps the names of what it drops until a timer of half a minute comes by.
    QPixmapCache::setCacheLimit(0);
    ProcessState before;
    ProcessState after;
    for (int i = 1; i <= count; ++i) {
        Watchdog::beat();
        openAndCloseOne(module, report, models[static_cast<std::size_t>(i) % models.size()]);
        if (i % firstLook != 0 && i != count)
            continue;
        after = ProcessState::now();
        after.print("after " + std::to_string(i) + " cameras");
        if (i <= firstLook)
            before = after;
    }
    if (after.memory - before.memory > toleratedGrowth || after.counts != before.counts
        || after.counts["cursors"] != 0)
        report.find("the process holds more than before");
}

void LongRuns::storm(TabExtensionInterface& module, Report& report, double minutes)
{
    constexpr double busyLimit = 0.02;
    const auto camera = quietCamera("current");
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, Watchdog::beat);
    heart.start(1000);
    const auto host = openPage(module, *camera, report);
    std::atomic<bool> ends{false};
    std::thread source([&] {
        auto next = std::chrono::steady_clock::now();
        for (int i = 0; !ends; ++i) {
            camera->burst(i % 2 ? "Width" : "PixelFormat", 1);
            std::this_thread::sleep_until(next += std::chrono::milliseconds(1));
        }
    });
    wait(5.0);
    const ProcessState before = ProcessState::now();
    const double busy = busyShare(minutes * 60.0);
    const ProcessState after = ProcessState::now();
    ends = true;
    source.join();

    report["notifications"] += camera->notificationCount();
    report["SDK calls"] += camera->journal().count();
    before.print("before");
    after.print("after");
    std::printf("GUI thread busy: %.2f %%\n", 100.0 * busy);
    if (busy > busyLimit)
        report.find("the GUI thread is too busy");
    if (after.memory - before.memory > toleratedGrowth)
        report.find("memory grows");
}

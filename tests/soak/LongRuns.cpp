#include "LongRuns.h"

#include "Host.h"
#include "Report.h"
#include "VirtualTime.h"
#include "Watchdog.h"

#include "simulator/Camera.h"

#include <QTest>
#include <QtWidgets>

#include <array>
#include <atomic>
#include <thread>

#include <malloc.h>
#include <unistd.h>

namespace {

constexpr auto memory = "KiB of memory";
constexpr auto heap = "KiB of heap in use";

using Holdings = std::map<std::string, long long>;

/// What the process holds.
Holdings lookAndPrint(const std::string& title)
{
    malloc_trim(0);
    QFile pages("/proc/self/statm");
    pages.open(QIODevice::ReadOnly);
    const auto blocks = mallinfo2();
    int timers = 0;
    for (QObject* const object : qApp->findChildren<QObject*>())
        timers += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
    const auto everything = QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System;
    Holdings held{
        {memory, pages.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) >> 10},
        {heap, static_cast<long long>((blocks.uordblks + blocks.hblkhd) >> 10)},
        {"descriptors", QDir("/proc/self/fd").entryList(everything).size()},
        {"timers", timers},
        {"translators", qApp->findChildren<QTranslator*>().size()},
        {"widgets", QApplication::allWidgets().size()},
        {"cursors", QApplication::overrideCursor() ? 1 : 0}};
    std::printf("%s:", title.c_str());
    for (const auto& [what, count] : held)
        std::printf(" %s %lld", what.c_str(), count);
    std::puts("");
    return held;
}

bool hasGrown(Holdings before, Holdings after)
{
    constexpr long long tolerance = 1024;
    const bool isLarger = after[memory] - before[memory] > tolerance;
    for (const char* what : {memory, heap})
        before[what] = after[what];
    return isLarger || after != before;
}

/// A page on a camera that keeps no list of its calls, which would count as the module's memory.
struct OpenPage
{
    OpenPage(TabExtensionInterface& module, const std::string& model)
        : camera(sim::createCamera(model))
    {
        camera->journal().record({});
        const auto features = camera->features();
        const auto connections = Host::connections();
        page->setParent(&host);
        module.createTab(
            TabExtensionInterface::FeatureList::create(features.begin(), features.end()), page,
            &connections);
        host.resize(700, 900);
        page->setGeometry(host.rect());
        host.show();
    }

    const std::unique_ptr<sim::Camera> camera;
    Host host;
    QWidget* const page = new QWidget;
};

void openAndCloseOne(TabExtensionInterface& module, Report& report, const std::string& model)
{
    const OpenPage open(module, model);
    QCoreApplication::processEvents();
    if (open.camera->has("Width"))
        open.camera->writeAsOtherClient("Width", 256);
    open.camera->flushNotifications(); // on a busy machine its threads would pile up
    QCoreApplication::processEvents();
    delete open.page;
    if (open.camera->observerCount() != 0)
        report.find("an observer is left");
}

} // namespace

void LongRuns::openAndClose(TabExtensionInterface& module, Report& report, int count)
{
    constexpr int firstLook = 100;
    constexpr std::array models{"current", "dsp", "aoi", "multi-region", "automode-dynamic"};
    // Qt's cache of pictures names them after palettes, of which each page has its own: it fills,
    // and keeps the names of what it drops until a timer of half a minute comes by.
    QPixmapCache::setCacheLimit(0);
    Holdings before;
    for (int i = 1; i <= count; ++i) {
        Watchdog::beat();
        openAndCloseOne(module, report, models[static_cast<std::size_t>(i) % models.size()]);
        // A viewer comes back to its event loop, where these end.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (i % firstLook != 0 && i != count)
            continue;
        const Holdings now = lookAndPrint("after " + std::to_string(i) + " cameras");
        if (before.empty())
            before = now;
        if (hasGrown(before, now))
            report.find("the process holds more than before");
    }
}

void LongRuns::storm(TabExtensionInterface& module, Report& report, double minutes)
{
    constexpr double busyLimit = 0.02;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, Watchdog::beat);
    heart.start(1000);
    const OpenPage open(module, "current");
    std::atomic<bool> ends{false};
    std::thread source([&] {
        auto next = std::chrono::steady_clock::now();
        for (int i = 0; !ends; ++i) {
            open.camera->burst(i % 2 ? "Width" : "PixelFormat", 1);
            std::this_thread::sleep_until(next += std::chrono::milliseconds(1));
        }
    });
    QTest::qWait(5000);
    const Holdings before = lookAndPrint("before");
    const std::chrono::duration<double> worked = Watchdog::guiTime();
    const std::chrono::duration<double> begin = VirtualTime::real();
    QTest::qWait(static_cast<int>(minutes * 60000.0));
    const double busy = (Watchdog::guiTime() - worked) / (VirtualTime::real() - begin);
    const Holdings after = lookAndPrint("after");
    ends = true;
    source.join();

    report["notifications"] += open.camera->notificationCount();
    std::printf("GUI thread busy: %.2f %%\n", 100.0 * busy);
    if (busy > busyLimit)
        report.find("the GUI thread is too busy");
    if (hasGrown(before, after))
        report.find("the process holds more than before");
}

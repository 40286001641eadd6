#include "LongRuns.h"

#include "Host.h"
#include "Report.h"
#include "VirtualTime.h"
#include "Watchdog.h"

#include "simulator/Camera.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QPixmapCache>
#include <QTimer>
#include <QTranslator>

#include <array>

#include <malloc.h>
#include <unistd.h>

namespace {

constexpr std::int64_t toleratedGrowth = 1 << 20;

/// What the process holds; memory in bytes.
struct Holdings
{
    std::int64_t memory = 0;
    std::map<std::string, int> counts;
};

/// Of the application's objects and of all widgets.
int timerCount()
{
    QObjectList objects = qApp->findChildren<QObject*>();
    for (QWidget* const widget : QApplication::allWidgets())
        objects.append(widget);
    int count = 0;
    for (QObject* const object : qAsConst(objects))
        count += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
    return count;
}

Holdings lookAndPrint(const std::string& title)
{
    malloc_trim(0);
    Holdings held;
    QFile pages("/proc/self/statm");
    if (pages.open(QIODevice::ReadOnly))
        held.memory = pages.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
    const QDir descriptors("/proc/self/fd");
    const auto everything = QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System;
    held.counts = {{"descriptors", descriptors.entryList(everything).size()},
                   {"timers", timerCount()},
                   {"translators", qApp->findChildren<QTranslator*>().size()},
                   {"widgets", QApplication::allWidgets().size()},
                   {"cursors", QApplication::overrideCursor() ? 1 : 0}};
    const auto heap = mallinfo2();
    std::printf("%s: memory %lld KiB, heap in use %zu KiB", title.c_str(),
                static_cast<long long>(held.memory >> 10), (heap.uordblks + heap.hblkhd) >> 10);
    for (const auto& [name, count] : held.counts)
        std::printf(", %s %d", name.c_str(), count);
    std::puts("");
    return held;
}

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

} // namespace

void LongRuns::openAndClose(TabExtensionInterface& module, Report& report, int count)
{
    constexpr int firstLook = 100;
    constexpr std::array models{"current", "dsp", "aoi", "multi-region", "automode-dynamic"};
    // Qt's cache of pictures names them after palettes, of which each page has its own: it fills,
    // and keeps the names of what it drops until a timer of half a minute comes by.
    QPixmapCache::setCacheLimit(0);
    Holdings before;
    Holdings after;
    for (int i = 1; i <= count; ++i) {
        Watchdog::beat();
        openAndCloseOne(module, report, models[static_cast<std::size_t>(i) % models.size()]);
        if (i % firstLook != 0 && i != count)
            continue;
        after = lookAndPrint("after " + std::to_string(i) + " cameras");
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
    const Holdings before = lookAndPrint("before");
    const std::chrono::duration<double> worked = Watchdog::guiTime();
    const std::chrono::duration<double> begin = VirtualTime::real();
    wait(minutes * 60.0);
    const double busy = (Watchdog::guiTime() - worked) / (VirtualTime::real() - begin);
    const Holdings after = lookAndPrint("after");
    ends = true;
    source.join();

    report["notifications"] += camera->notificationCount();
    report["SDK calls"] += camera->journal().count();
    std::printf("GUI thread busy: %.2f %%\n", 100.0 * busy);
    if (busy > busyLimit)
        report.find("the GUI thread is too busy");
    if (after.memory - before.memory > toleratedGrowth)
        report.find("memory grows");
}

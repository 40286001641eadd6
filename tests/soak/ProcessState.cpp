#include "ProcessState.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTranslator>
#include <QWidget>

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// Of the application's objects and of all widgets.
int timerCount()
{
    QObjectList objects = qApp->findChildren<QObject*>();
    objects.append(qApp);
    for (QWidget* const widget : QApplication::allWidgets())
        objects.append(widget);
    int count = 0;
    for (QObject* const object : qAsConst(objects))
        count += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
    return count;
}

} // namespace

ProcessState ProcessState::now()
{
    malloc_trim(0);
    ProcessState state;
    QFile pages("/proc/self/statm");
    if (pages.open(QIODevice::ReadOnly))
        state.memory = pages.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
    const auto heap = mallinfo2();
    state.heap = static_cast<std::int64_t>(heap.uordblks + heap.hblkhd);
    const QDir descriptors("/proc/self/fd");
    const auto everything = QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System;
    state.counts = {{"descriptors", descriptors.entryList(everything).size()},
                    {"timers", timerCount()},
                    {"translators", qApp->findChildren<QTranslator*>().size()},
                    {"widgets", QApplication::allWidgets().size()},
                    {"cursors", QApplication::overrideCursor() ? 1 : 0}};
    return state;
}

std::int64_t ProcessState::largestMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * 1024;
}

void ProcessState::print(const std::string& title) const
{
    std::printf("%s: memory %lld KiB, heap in use %lld KiB", title.c_str(),
                static_cast<long long>(memory >> 10), static_cast<long long>(heap >> 10));
    for (const auto& [name, count] : counts)
        std::printf(", %s %d", name.c_str(), count);
    std::puts("");
}

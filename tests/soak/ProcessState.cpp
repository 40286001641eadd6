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

std::int64_t residentBytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

} // namespace

ProcessState ProcessState::now()
{
    ProcessState state;
    state.residentBytes = ::residentBytes();
    const auto heap = mallinfo2();
    state.heapBytes = static_cast<std::int64_t>(heap.uordblks + heap.hblkhd);
    state.descriptors = QDir(QStringLiteral("/proc/self/fd"))
                            .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                            .size();
    const auto widgets = QApplication::allWidgets();
    state.widgets = widgets.size();
    auto objects = qApp->findChildren<QObject*>();
    objects.append(qApp);
    for (QObject* const widget : widgets)
        objects.append(widget);
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    for (QObject* const object : qAsConst(objects))
        state.timers += dispatcher->registeredTimers(object).size();
    state.translators = qApp->findChildren<QTranslator*>().size();
    state.hasCursor = QApplication::overrideCursor() != nullptr;
    return state;
}

std::int64_t ProcessState::largestMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss * 1024;
}

QString ProcessState::text() const
{
    return QStringLiteral(
               "memory %1 KiB, heap in use %2 KiB, descriptors %3, timers %4, translators %5, "
               "widgets %6, cursor %7")
        .arg(residentBytes / 1024)
        .arg(heapBytes / 1024)
        .arg(descriptors)
        .arg(timers)
        .arg(translators)
        .arg(widgets)
        .arg(hasCursor ? QStringLiteral("yes") : QStringLiteral("no"));
}

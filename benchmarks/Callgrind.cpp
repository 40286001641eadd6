#include "Callgrind.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <limits>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
constexpr bool hasHeader = true;
#else
#define RUNNING_ON_VALGRIND false
#define CALLGRIND_START_INSTRUMENTATION
#define CALLGRIND_STOP_INSTRUMENTATION
#define CALLGRIND_DUMP_STATS
constexpr bool hasHeader = false;
#endif

namespace {

constexpr double unknown = std::numeric_limits<double>::infinity();

} // namespace

bool Callgrind::isRunning()
{
    return RUNNING_ON_VALGRIND;
}

bool Callgrind::isAvailable()
{
    return hasHeader && !QStandardPaths::findExecutable(QStringLiteral("valgrind")).isEmpty();
}

double Callgrind::instructionsOf(const Work& work)
{
    static int dumps = 0;
    CALLGRIND_START_INSTRUMENTATION;
    work();
    CALLGRIND_STOP_INSTRUMENTATION;
    CALLGRIND_DUMP_STATS;
    QFile dump(QStringLiteral("counts.%1").arg(++dumps));
    const QByteArray heading = "totals: ";
    const QByteArray text = dump.open(QIODevice::ReadOnly) ? dump.readAll() : QByteArray();
    const auto lines = text.split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(heading))
            return line.mid(heading.size()).toDouble();
    }
    return unknown;
}

double Callgrind::valueOf(const std::string& row)
{
    const QTemporaryDir directory; // the working directory of that process, for its dumps
    QFile result(directory.filePath(QStringLiteral("result.json")));
    QProcess process;
    process.setWorkingDirectory(directory.path());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start("valgrind",
                  {"--tool=callgrind", "--quiet", "--instr-atstart=no",
                   "--callgrind-out-file=counts", QCoreApplication::applicationFilePath(),
                   "--benchmark_filter=^" + QString::fromStdString(row) + "/iterations",
                   "--benchmark_out_format=json", "--benchmark_out=" + result.fileName()});
    process.waitForFinished(-1);
    if (!result.open(QIODevice::ReadOnly))
        return unknown;
    const QJsonDocument report = QJsonDocument::fromJson(result.readAll());
    return report["benchmarks"][0]["value"].toDouble(unknown);
}

#include "Report.h"

#include "ProcessState.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace {

constexpr std::array<const char*, sim::Failure::kindCount> kindNames{
    "slow",         "refused", "reported although done", "another value", "length 0", "grown",
    "unterminated", "4 GiB",   "null entries",           "exception",     "lost"};
constexpr std::array<const char*, Report::endingCount> endingNames{
    "hidden", "while visible", "mid-drag", "with a dialog", "with an editor open"};
constexpr std::array<const char*, TranslationFiles::kindCount> translationNames{"built", "missing",
                                                                                "broken"};

void line(const QString& name, std::uint64_t value)
{
    std::printf("%s: %llu\n", qPrintable(name), static_cast<unsigned long long>(value));
}

} // namespace

void Report::print() const
{
    line(QStringLiteral("sessions run"), sessions);
    line(QStringLiteral("sessions without threads"), exactSessions);
    line(QStringLiteral("user actions"), actions);
    line(QStringLiteral("SDK calls"), sdkCalls);
    for (std::size_t kind = 0; kind < failures.size(); ++kind)
        line(QStringLiteral("injected failures, %1").arg(QLatin1String(kindNames[kind])),
             failures[kind]);
    line(QStringLiteral("cameras lost"), lostCameras);
    line(QStringLiteral("slowest close of a lost camera, ms"),
         static_cast<std::uint64_t>(slowestLostClose));
    line(QStringLiteral("picture files picked"), picturesPicked);
    for (std::size_t kind = 0; kind < translations.size(); ++kind)
        line(QStringLiteral("sessions with translations %1")
                 .arg(QLatin1String(translationNames[kind])),
             translations[kind]);
    line(QStringLiteral("notifications"), notifications);
    line(QStringLiteral("bursts of 100 000 from each of four threads"), largeBursts);
    line(QStringLiteral("pages opened"), opened);
    line(QStringLiteral("pages refused"), refused);
    line(QStringLiteral("pages destroyed"),
         std::accumulate(destroyed.begin(), destroyed.end(), std::uint64_t{0}));
    for (std::size_t ending = 0; ending < destroyed.size(); ++ending)
        line(QStringLiteral("pages destroyed, %1").arg(QLatin1String(endingNames[ending])),
             destroyed[ending]);
    line(QStringLiteral("largest memory, MiB"),
         static_cast<std::uint64_t>(ProcessState::largestMemory() >> 20));
    line(QStringLiteral("findings"), static_cast<std::uint64_t>(findings.size()));
    std::fflush(stdout);
}

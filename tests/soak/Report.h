#pragma once

#include "TranslationFiles.h"

#include "simulator/Failure.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>

/// What a run did and found.
struct Report
{
    /// The state in which a page was destroyed.
    enum Ending {
        Hidden,
        Visible,
        MidDrag,
        WithDialog,
        WithEditor
    };
    static constexpr std::size_t endingCount = 5;

    std::uint64_t sessions = 0;
    std::uint64_t exactSessions = 0; ///< without threads: these replay call by call
    std::uint64_t actions = 0;
    std::uint64_t sdkCalls = 0;
    std::uint64_t notifications = 0;
    std::uint64_t largeBursts = 0;
    std::array<std::uint64_t, sim::Failure::kindCount> failures{};
    std::uint64_t lostCameras = 0;
    std::int64_t slowestLostClose = 0; ///< milliseconds
    std::uint64_t picturesPicked = 0;
    std::array<std::uint64_t, TranslationFiles::kindCount> translations{};
    std::uint64_t opened = 0;
    std::uint64_t refused = 0; ///< the module took no page
    std::array<std::uint64_t, endingCount> destroyed{};
    QStringList findings;

    /// One figure a line, each after its name.
    void print() const;
};

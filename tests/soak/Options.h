#pragma once

#include <QString>

#include <cstdint>
#include <limits>
#include <optional>

class QCoreApplication;

/// The command line.
struct Options
{
    QString module = QStringLiteral(MODULE_PATH);
    double minutes = 1.0;
    std::uint64_t seed = 1;
    std::uint64_t sessions = std::numeric_limits<std::uint64_t>::max();
    std::optional<std::uint64_t> replay;
    int cameras = 0;           ///< to open and close instead
    double stormMinutes = 0.0; ///< of notifications instead
    bool checksReplay = false;
    bool isVerbose = false;

    /// Ends the program for --help and for what cannot be read.
    static Options parse(const QCoreApplication& application);
};

#pragma once

#include <QString>

#include <cstdint>

/// What the process holds now.
struct ProcessState
{
    std::int64_t residentBytes = 0;
    std::int64_t heapBytes = 0; ///< in use
    int descriptors = 0;
    int timers = 0; ///< of the application's objects and of all widgets
    int translators = 0;
    int widgets = 0;
    bool hasCursor = false;

    static ProcessState now();
    static std::int64_t largestMemory(); ///< bytes, since the start
    QString text() const;
};

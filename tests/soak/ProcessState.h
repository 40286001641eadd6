#pragma once

#include <cstdint>
#include <map>
#include <string>

/// What the process holds now.
struct ProcessState
{
    std::int64_t memory = 0; ///< resident; bytes, as all memory here
    std::int64_t heap = 0;   ///< in use
    std::map<std::string, int> counts;

    static ProcessState now();
    static std::int64_t largestMemory(); ///< since the start
    void print(const std::string& title) const;
};

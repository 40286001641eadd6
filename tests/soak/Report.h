#pragma once

#include "Watchdog.h"

#include <QString>

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>

/// What a run did and found.
struct Report
{
    std::map<std::string, std::uint64_t> figures;
    int findings = 0;

    std::uint64_t& operator[](const std::string& figure) { return figures[figure]; }

    void find(const QString& text)
    {
        ++findings;
        std::fprintf(stderr, "finding: %s\n", qPrintable(text));
        Watchdog::tellPlace();
    }

    void print() const
    {
        for (const auto& [name, value] : figures)
            std::printf("%s: %llu\n", name.c_str(), static_cast<unsigned long long>(value));
        std::printf("findings: %d\n", findings);
    }
};

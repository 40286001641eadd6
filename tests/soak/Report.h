#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <cstdio>
#include <map>

/// What a run did and found.
class Report
{
public:
    QStringList findings;

    std::uint64_t& operator[](const QString& figure) { return m_figures[figure]; }

    /// One figure a line, each after its name, in the order of the names.
    void print() const
    {
        for (const auto& [name, value] : m_figures)
            std::printf("%s: %llu\n", qPrintable(name), static_cast<unsigned long long>(value));
        std::printf("findings: %d\n", int(findings.size()));
        std::fflush(stdout);
    }

private:
    std::map<QString, std::uint64_t> m_figures;
};

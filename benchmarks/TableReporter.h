#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

/// Prints a line for each row as it is done, and remembers which missed their targets.
class TableReporter : public benchmark::BenchmarkReporter
{
public:
    /// @p machine is what the benchmarks run on, in one line.
    explicit TableReporter(std::string machine);

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    const std::vector<std::string>& missed() const { return m_missed; }

private:
    void report(const Run& run);

    const std::string m_machine;
    std::vector<std::string> m_missed;
};

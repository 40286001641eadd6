#include "TableReporter.h"

#include <iomanip>
#include <iostream>
#include <optional>
#include <sstream>
#include <utility>

namespace {

using Run = benchmark::BenchmarkReporter::Run;

constexpr int nameWidth = 42;
constexpr int timeWidth = 11;
constexpr int referenceWidth = 34;
constexpr int ratioWidth = 9;

std::optional<double> counter(const Run& run, const std::string& name)
{
    const auto found = run.counters.find(name);
    if (found == run.counters.end())
        return {};
    return found->second.value;
}

std::string number(double value)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(value < 100.0 ? 2 : 0) << value;
    return text.str();
}

std::string microseconds(std::optional<double> seconds)
{
    return seconds ? number(*seconds * 1e6) : "-";
}

std::string details(const Run& run)
{
    const std::string prefix = "detail_";
    std::string text;
    for (const auto& [name, value] : run.counters)
        if (name.compare(0, prefix.size(), prefix) == 0)
            text += "  " + name.substr(prefix.size()) + " " + number(value.value);
    return text;
}

void cell(const std::string& text, int width)
{
    std::cout << std::setw(width) << text;
}

} // namespace

TableReporter::TableReporter(std::string machine)
    : m_machine(std::move(machine))
{
}

bool TableReporter::ReportContext(const Context&)
{
    std::cout << m_machine << "\nTimes in microseconds; the ratio is that of the medians.\n\n"
              << std::left;
    cell("row", nameWidth);
    cell("against", referenceWidth);
    std::cout << std::right;
    for (const char* title : {"p50", "p99", "ref. p50", "ref. p99"})
        cell(title, timeWidth);
    for (const char* title : {"ratio", "target"})
        cell(title, ratioWidth);
    std::cout << "\n" << std::flush;
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
        report(run);
}

void TableReporter::report(const Run& run)
{
    const std::string name = run.run_name.function_name;
    std::cout << std::left;
    cell(name, nameWidth);
    if (run.error_occurred) {
        std::cout << "failed: " << run.error_message << "\n";
        m_missed.push_back(name);
        return;
    }
    cell(run.report_label, referenceWidth);
    std::cout << std::right;
    for (const char* time : {"ours_p50", "ours_p99", "reference_p50", "reference_p99"})
        cell(microseconds(counter(run, time)), timeWidth);
    const double value = counter(run, "value").value_or(0.0);
    const auto target = counter(run, "target");
    cell(number(value), ratioWidth);
    cell(target ? number(*target) : "-", ratioWidth);
    std::cout << details(run);
    if (target && !(value <= *target)) {
        std::cout << "  over";
        m_missed.push_back(name);
    }
    std::cout << "\n" << std::flush;
}

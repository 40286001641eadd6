#include "Row.h"
#include "TableReporter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QSysInfo>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>

namespace {

/// Takes @p option out of the arguments.
bool takeOption(int& argc, char** argv, const char* option)
{
    char** const end = std::remove_if(argv + 1, argv + argc, [option](const char* argument) {
        return option == std::string(argument);
    });
    const bool found = end != argv + argc;
    argc = static_cast<int>(end - argv);
    return found;
}

std::string processorName()
{
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.compare(0, 10, "model name") == 0)
            return line.substr(line.find(':') + 2);
    return QSysInfo::currentCpuArchitecture().toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    const bool checks = takeOption(argc, argv, "--check");
    const QApplication application(argc, argv);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    const std::string processor = processorName();
    const std::string platform = QGuiApplication::platformName().toStdString();
    benchmark::AddCustomContext("processor", processor);
    benchmark::AddCustomContext("qt", qVersion());
    benchmark::AddCustomContext("platform", platform);

    addRegionDragRows();
    addBandDragRows();
    addBackgroundRows();
    addResizeRows();
    addOpeningRows();
    addLookupRows();
    addRefreshRows();
    addFeatureTableRows();
    addDefaultLayoutRows();
    addCameraQuestionRows();

    TableReporter table(std::to_string(std::thread::hardware_concurrency()) + " x " + processor
                        + ", Qt " + qVersion() + ", platform " + platform);
    benchmark::RunSpecifiedBenchmarks(&table);

    for (const std::string& name : table.missed())
        std::cout << "Over its target: " << name << "\n";
    return checks && !table.missed().empty() ? 1 : 0;
}

#include "Row.h"

#include <benchmark/benchmark.h>

#include <utility>

namespace {

void add(benchmark::State& state, const char* side, const Percentiles& times)
{
    state.counters[std::string(side) + "_p50"] = times.p50;
    state.counters[std::string(side) + "_p99"] = times.p99;
}

void addResult(benchmark::State& state, double value, std::optional<double> target,
               const std::map<std::string, double>& details)
{
    state.counters["value"] = value;
    if (target)
        state.counters["target"] = *target;
    for (const auto& [name, detail] : details)
        state.counters["detail_" + name] = detail;
}

} // namespace

void addComparison(const std::string& name, const std::string& reference,
                   std::optional<double> target, Sampling sampling,
                   std::function<Contest()> prepare)
{
    const auto run = [=](benchmark::State& state) {
        const Contest contest = prepare();
        Interleaved interleaved(contest.ours, contest.reference, contest.between);
        interleaved.warmUp(sampling.warmUp);
        for (auto _ : state)
            state.SetIterationTime(interleaved.sample());
        add(state, "ours", interleaved.ours());
        add(state, "reference", interleaved.reference());
        addResult(state, interleaved.ratio(), target, contest.details);
        state.SetLabel(reference);
    };
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->UseManualTime()
        ->Iterations(sampling.samples)
        ->Unit(benchmark::kMicrosecond);
}

void addMeasurement(const std::string& name, const std::string& unit, std::optional<double> target,
                    std::function<Measurement()> measure)
{
    const auto run = [=](benchmark::State& state) {
        Measurement measurement;
        for (auto _ : state)
            state.SetIterationTime(secondsOf([&] { measurement = measure(); }));
        if (measurement.times)
            add(state, "ours", *measurement.times);
        addResult(state, measurement.value, target, measurement.details);
        state.SetLabel(unit);
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->UseManualTime()->Iterations(1);
}

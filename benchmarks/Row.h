#pragma once

#include "Interleaved.h"

#include <map>
#include <optional>
#include <string>

/// What a comparison runs. The works keep what they need alive.
struct Contest
{
    Work ours;
    Work reference;
    std::map<std::string, double> details = {}; ///< shown beside the times
    Work between = [] {};                       ///< before every sample, not measured
};

struct Sampling
{
    int samples = 200;
    int warmUp = 20;
};

/// Our work against the reference's, by turns. The ratio of the medians is to stay at or below
/// @p target, if there is one.
void addComparison(const std::string& name, const std::string& reference,
                   std::optional<double> target, Sampling sampling,
                   std::function<Contest()> prepare);

/// What is measured once.
struct Measurement
{
    double value = 0.0;
    std::map<std::string, double> details = {};
    std::optional<Percentiles> times = {};
};

/// One value in @p unit that is to stay at or below @p target, if there is one.
void addMeasurement(const std::string& name, const std::string& unit, std::optional<double> target,
                    std::function<Measurement()> measure);

// The rows, each in a file of its own.
void addRegionDragRows();
void addBandDragRows();
void addBackgroundRows();
void addResizeRows();
void addOpeningRows();
void addLookupRows();
void addRefreshRows();
void addFeatureTableRows();
void addDefaultLayoutRows();
void addCameraQuestionRows();

#pragma once

#include <functional>
#include <vector>

/// Seconds.
struct Percentiles
{
    double p50 = 0.0;
    double p99 = 0.0;
};

/// @p samples in any order; at least one.
Percentiles percentilesOf(std::vector<double> samples);

using Work = std::function<void()>;

double secondsOf(const Work& work);

/// Measures two pieces of work by turns, so that whatever else the machine does meanwhile strikes
/// both. Who begins alternates too, since the second finds the caches filled by the first.
class Interleaved
{
public:
    /// @param between runs before every sample and is not measured
    Interleaved(
        Work ours, Work reference, Work between = [] {});

    void warmUp(int rounds);
    /// Runs each once more; gives the seconds that our work took.
    double sample();

    Percentiles ours() const { return percentilesOf(m_ours); }
    Percentiles reference() const { return percentilesOf(m_reference); }
    /// Of the medians.
    double ratio() const { return ours().p50 / reference().p50; }

private:
    double measure(const Work& work) const;

    Work m_oursWork;
    Work m_referenceWork;
    Work m_between;
    std::vector<double> m_ours;
    std::vector<double> m_reference;
};

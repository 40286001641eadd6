#include "Interleaved.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace {

double quantile(const std::vector<double>& sorted, double share)
{
    const auto rank
        = static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size())));
    return sorted.at(std::max<std::size_t>(rank, 1) - 1);
}

} // namespace

Percentiles percentilesOf(std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    return {quantile(samples, 0.50), quantile(samples, 0.99)};
}

double secondsOf(const Work& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Interleaved::Interleaved(Work ours, Work reference, Work between)
    : m_oursWork(std::move(ours))
    , m_referenceWork(std::move(reference))
    , m_between(std::move(between))
{
}

double Interleaved::measure(const Work& work) const
{
    m_between();
    return secondsOf(work);
}

void Interleaved::warmUp(int rounds)
{
    for (int i = 0; i < rounds; ++i) {
        measure(m_oursWork);
        measure(m_referenceWork);
    }
}

double Interleaved::sample()
{
    const bool oursFirst = m_ours.size() % 2 == 0;
    if (oursFirst)
        m_ours.push_back(measure(m_oursWork));
    m_reference.push_back(measure(m_referenceWork));
    if (!oursFirst)
        m_ours.push_back(measure(m_oursWork));
    return m_ours.back();
}

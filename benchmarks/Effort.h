#pragma once

#include "Interleaved.h"

#include <functional>
#include <string>

/// What work costs, whatever else the machine does: the instructions of this thread where the
/// system lets them be counted or callgrind counts them, its time on the processor in nanoseconds
/// otherwise.
class Effort
{
public:
    Effort();
    ~Effort();
    Effort(const Effort&) = delete;
    Effort& operator=(const Effort&) = delete;

    bool countsInstructions() const { return m_way != Way::Time; }
    const char* unit() const { return countsInstructions() ? "instructions" : "processor ns"; }

    /// The value of a row, which takes the efforts that it needs by of().
    double inRow(const std::string& row, const std::function<double()>& value) const;
    double of(const Work& work) const;

private:
    enum class Way {
        System,
        Callgrind,
        Time
    };
    double now() const;

    int m_counter;
    Way m_way;
};

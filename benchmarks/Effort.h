#pragma once

#include "Interleaved.h"

/// What work costs, whatever else the machine does: the instructions of this thread where the
/// system lets them be counted, its time on the processor in nanoseconds otherwise.
class Effort
{
public:
    Effort();
    ~Effort();
    Effort(const Effort&) = delete;
    Effort& operator=(const Effort&) = delete;

    bool countsInstructions() const { return m_counter >= 0; }
    const char* unit() const { return countsInstructions() ? "instructions" : "processor ns"; }

    double of(const Work& work) const;

private:
    double now() const;

    int m_counter;
};

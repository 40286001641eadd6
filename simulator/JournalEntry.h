#pragma once

#include "Operation.h"
#include "Value.h"

#include <ZebCPP/ZebCPP.h>

#include <string>
#include <thread>

namespace sim {

/// One call of an SDK operation.
struct JournalEntry
{
    Operation operation;
    std::string feature;
    Value value; ///< what was written or read; nothing for lists, ranges and failed reads
    ZebErrorType result;
    std::thread::id thread;
};

} // namespace sim

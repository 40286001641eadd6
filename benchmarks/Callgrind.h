#pragma once

#include "Interleaved.h"

#include <string>

/// Counts instructions where the system does not: the program runs one of its rows once more, by
/// valgrind, which it tells what work to count.
namespace Callgrind {

/// Whether this process is the one that is run so.
bool isRunning();
/// Whether there are valgrind's header, when this is built, and its program.
bool isAvailable();

/// For the process that is run so.
double instructionsOf(const Work& work);
/// What @p row finds in such a process; more than any target when it fails there.
double valueOf(const std::string& row);

} // namespace Callgrind

#pragma once

#include "host/TabExtensionInterface.h"

struct Report;

/// Runs that look for what grows.
namespace LongRuns {

/// Opens and closes a camera @p count times; what the process holds after the hundredth and after
/// the last has to be the same.
void openAndClose(TabExtensionInterface& module, Report& report, int count);

/// Shows a page while its camera notifies 1000 times a second; tells how busy the GUI thread is and
/// whether memory grows.
void storm(TabExtensionInterface& module, Report& report, double minutes);

} // namespace LongRuns

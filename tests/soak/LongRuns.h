#pragma once

#include "host/TabExtensionInterface.h"

struct Report;

/// Runs that look for what grows.
namespace LongRuns {

/// The process holds the same after the hundredth camera and after the last.
void openAndClose(TabExtensionInterface& module, Report& report, int count);

/// A camera notifies 1000 times a second: how busy is the GUI thread, and does memory grow?
void storm(TabExtensionInterface& module, Report& report, double minutes);

} // namespace LongRuns

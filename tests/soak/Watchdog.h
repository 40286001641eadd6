#pragma once

#include <chrono>
#include <cstdint>

/// Ends the program, with the place told, when the GUI thread hangs or crashes.
namespace Watchdog {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int slowdown = 12; ///< at most, of the GUI thread, by the sanitizers
#else
constexpr int slowdown = 1;
#endif

void start();
/// The GUI thread is alive.
void beat();
/// What the GUI thread worked and waited for the camera; a busy machine adds nothing.
std::chrono::nanoseconds guiTime();
/// Where it is; @p action is a literal.
void setPlace(std::uint64_t seed, int step, const char* action);

} // namespace Watchdog

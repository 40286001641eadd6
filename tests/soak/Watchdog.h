#pragma once

#include <chrono>
#include <cstdint>
#include <string>

/// Ends the program, with the place told, when the GUI thread hung or crashes.
namespace Watchdog {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int slowdown = 12; ///< at most, of the GUI thread, by the sanitizers
#else
constexpr int slowdown = 1;
#endif

void start(bool isVerbose);
/// The GUI thread is alive, and calls this.
void beat();
/// What the GUI thread worked and waited for the camera; a busy machine adds nothing.
std::chrono::nanoseconds guiTime();
/// Where it is, which is printed now when verbose.
void setPlace(std::uint64_t seed, const std::string& camera, int step, const char* action);
void tellPlace();

} // namespace Watchdog

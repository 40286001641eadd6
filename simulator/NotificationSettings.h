#pragma once

#include <chrono>

namespace sim {

/// How a camera tells its observers of changes.
struct NotificationSettings
{
    enum class Mode {
        Off,
        Synchronous,  ///< on the writing thread, before the write returns
        Asynchronous, ///< on a thread of the camera's own, after the delay
    };

    Mode mode = Mode::Asynchronous;
    std::chrono::milliseconds delay{2};
    bool cascades = true;                 ///< features that depend on the written one are told too
    int repeats = 1;                      ///< notifications for each change
    bool onRegistration = false;          ///< an observer is called while it registers
    bool lateAfterUnregistration = false; ///< once more, after the delay, on the camera's thread

    static NotificationSettings off() { return with(Mode::Off); }
    static NotificationSettings synchronous() { return with(Mode::Synchronous); }
    static NotificationSettings asynchronous(std::chrono::milliseconds delay = {})
    {
        NotificationSettings settings = with(Mode::Asynchronous);
        settings.delay = delay;
        return settings;
    }

private:
    static NotificationSettings with(Mode mode)
    {
        NotificationSettings settings;
        settings.mode = mode;
        return settings;
    }
};

} // namespace sim

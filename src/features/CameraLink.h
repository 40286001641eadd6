#pragma once

#include "features/SdkValues.h"

#include <chrono>

/// Tells whether the camera still answers; all pages of a camera share one.
///
/// A camera that was unplugged lets every call wait before it fails, and a page makes hundreds of
/// calls for a refresh: it would hold up the viewer for minutes. So the link counts as broken after
/// two failed calls in a row, of which the second made its caller wait. Calls then fail at once
/// with the camera's code and reach the camera no more, but for one every few seconds, by which the
/// link mends itself when the camera is back; a page that waits for that asks isDue(). Quick
/// failures break nothing, and no call is timed while all goes well.
///
/// For the GUI thread only.
class CameraLink
{
public:
    /// Runs @p call, which answers a ZebErrorType, unless the link is broken.
    template <typename Call> ZebErrorType ask(Call&& call)
    {
        if (m_state == State::Sound) {
            const ZebErrorType result = call();
            if (result != Sdk::success)
                m_state = State::Doubtful;
            return result;
        }
        const Clock::time_point begin = Clock::now();
        if (m_state == State::Broken && begin < m_nextTry)
            return m_code;
        const ZebErrorType result = call();
        take(result, begin);
        return result;
    }

    bool isBroken() const { return m_state == State::Broken; }

    /// Whether the next call reaches the camera, which may make it wait.
    bool isDue() const { return !isBroken() || Clock::now() >= m_nextTry; }

private:
    using Clock = std::chrono::steady_clock;
    enum class State {
        Sound,
        Doubtful,
        Broken
    };

    void take(ZebErrorType result, Clock::time_point begin);

    State m_state = State::Sound;
    ZebErrorType m_code = Sdk::success;
    Clock::time_point m_nextTry;
};

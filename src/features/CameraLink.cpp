#include "features/CameraLink.h"

namespace {

constexpr std::chrono::milliseconds noticeableWait{100};
constexpr std::chrono::seconds pauseBetweenTries{5};

} // namespace

void CameraLink::take(ZebErrorType result, Clock::time_point begin)
{
    const Clock::time_point end = Clock::now();
    if (result == Sdk::success) {
        m_state = State::Sound;
    } else if (end - begin < noticeableWait) {
        m_state = State::Doubtful;
    } else {
        m_state = State::Broken;
        m_code = result;
        m_nextTry = end + pauseBetweenTries;
    }
}

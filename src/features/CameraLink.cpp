#include "features/CameraLink.h"

namespace {

constexpr std::chrono::milliseconds noticeableWait{100};
constexpr std::chrono::seconds pause{1};
constexpr std::chrono::seconds laterPause{5};
constexpr int questionsInQuickSuccession = 5;

} // namespace

bool CameraLink::isSlow(Milliseconds duration)
{
    return duration >= noticeableWait;
}

void CameraLink::told(const QString& feature, ZebErrorType result, Milliseconds duration)
{
    ++m_heard;
    m_isDoubtful = result != Sdk::success && isSlow(duration);
    if (!m_isDoubtful) {
        // A refusal at once is an answer as well.
        m_isLost = false;
        m_isLossTaken = false;
        m_lastFailed.clear();
        return;
    }
    const bool isAnother = !m_lastFailed.isNull() && m_lastFailed != feature;
    m_lastFailed = feature;
    if (!m_isLost && !isAnother)
        return;
    const bool wasDue = isDue();
    m_questions = !m_isLost ? 0 : m_questions + (wasDue ? 1 : 0);
    m_isLost = true;
    m_nextQuestion = Clock::now() + (m_questions < questionsInQuickSuccession ? pause : laterPause);
}

CameraLink::Lasting CameraLink::counted(int& count)
{
    ++count;
    return {nullptr, [&count](void*) { --count; }};
}

CameraLink::Lasting CameraLink::memory()
{
    if (m_memories == 0)
        m_known.clear();
    return counted(m_memories);
}

bool CameraLink::mayPart() const
{
    return m_parting + m_lastParting <= patience || Clock::now() - m_firstParting > laterPause;
}

void CameraLink::parted(ZebErrorType result, Milliseconds duration)
{
    const Clock::time_point now = Clock::now();
    if (result == Sdk::success || now - m_firstParting > laterPause)
        m_parting = m_lastParting = Milliseconds{0};
    if (result == Sdk::success)
        return;
    if (m_parting == Milliseconds{0})
        m_firstParting = now;
    m_parting += duration;
    m_lastParting = duration;
    m_isDoubtful = m_isDoubtful || isSlow(duration);
}

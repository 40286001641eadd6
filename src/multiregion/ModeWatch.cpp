#include "multiregion/ModeWatch.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int shortestEcho = 4; // seconds
constexpr int longestEcho = 64;

} // namespace

void ModeWatch::note()
{
    (m_isSelecting ? m_isEchoImmediate : m_isReported) = true;
}

bool ModeWatch::isLookDue(bool isVisible)
{
    const bool isReported = std::exchange(m_isReported, false);
    if (m_echoSeconds > 0) {
        --m_echoSeconds;
        return false;
    }
    if (isReported && isVisible)
        return true;
    m_patience = 0;
    return false;
}

void ModeWatch::lookEnded(bool isUnchanged)
{
    m_patience = isUnchanged ? std::clamp(2 * m_patience, shortestEcho, longestEcho) : 0;
    m_echoSeconds = m_isEchoImmediate ? 0 : m_patience;
}

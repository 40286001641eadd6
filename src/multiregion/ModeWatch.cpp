#include "multiregion/ModeWatch.h"

#include <algorithm>

namespace {

constexpr int longestEcho = 10; ///< seconds
constexpr int longestGap = 4;   ///< seconds between the reports of one echo
constexpr int mostVainLooks = 8;

} // namespace

void ModeWatch::reported()
{
    ++m_reports;
    m_quietSeconds = -1;
}

bool ModeWatch::isLookDue()
{
    ++m_quietSeconds;
    if (m_reports == 0) {
        if (m_quietSeconds >= longestEcho)
            rest();
        return false;
    }
    if (m_vainLooks == 0)
        return true;
    const bool isKnown = m_echoesAlike > 1;
    if (isKnown && isEcho()) {
        ++m_echoesAlike;
        rest();
        return false;
    }
    if (isKnown && m_reports > m_echo)
        return true;
    // All of the echo is waited for, a little longer each time: it need not come at once.
    if (m_quietSeconds < (isKnown ? longestGap : std::min(m_vainLooks, longestGap)))
        return false;
    if (m_vainLooks < mostVainLooks)
        return true;
    rest();
    return false;
}

void ModeWatch::lookBegins()
{
    if (m_vainLooks > 0) {
        m_echoesAlike = isEcho() ? m_echoesAlike + 1 : 1;
        m_echo = m_reports;
        m_echoSelections = m_selections;
    }
    m_reports = 0;
    m_selections = 0;
}

void ModeWatch::looked(bool found)
{
    m_vainLooks = found ? 0 : m_vainLooks + 1;
    m_quietSeconds = 0;
}

void ModeWatch::rest()
{
    m_reports = 0;
    m_vainLooks = 0;
}

#include "multiregion/ModeWatch.h"

#include <utility>

namespace {

constexpr int longestEcho = 10; ///< seconds
constexpr int mostVainLooks = 8;

} // namespace

void ModeWatch::reported()
{
    if (m_isSelecting && !std::exchange(m_hasEcho, true))
        return;
    ++m_reports;
}

bool ModeWatch::isLookDue()
{
    const bool isQuiet = std::exchange(m_reportsBefore, m_reports) == m_reports;
    m_quietSeconds = isQuiet ? m_quietSeconds + 1 : 0;
    if (m_reports == 0) {
        if (m_quietSeconds >= longestEcho)
            rest();
        return false;
    }
    // After a look in vain all of its echo is waited for, a little longer each time: cameras need
    // not tell it all at once.
    if (m_vainLooks == 0 || (m_echo && m_reports > *m_echo))
        return true;
    if (m_quietSeconds < m_vainLooks)
        return false;
    const bool isEcho = m_reports == m_echo && m_reports >= m_selections;
    if (!isEcho && m_vainLooks < mostVainLooks)
        return true;
    rest();
    return false;
}

void ModeWatch::lookBegins()
{
    m_echo = m_vainLooks > 0 ? std::optional<int>(m_reports) : std::nullopt;
    m_reports = 0;
    m_selections = 0;
}

void ModeWatch::looked(bool found)
{
    m_vainLooks = found ? 0 : m_vainLooks + 1;
    m_reportsBefore = m_reports;
    m_quietSeconds = 0;
}

void ModeWatch::rest()
{
    m_reports = 0;
    m_vainLooks = 0;
    m_echo.reset();
}

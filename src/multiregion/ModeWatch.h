#pragma once

/// Tells when to look at all regions for those that another client has switched.
///
/// A camera may notify of a region's mode whenever another region is selected, as a look does for
/// each. What it tells is looked at, whatever it is, until three looks in vain were each followed
/// by as many reports: that many are known for the echo of a look from then on, and more or fewer
/// are news.
class ModeWatch
{
public:
    /// The page selects a region, and hears nothing meanwhile.
    /// @param isOther another one than before
    void selecting(bool isOther) { m_selections += isOther ? 1 : 0; }

    /// The camera has notified of a region's mode.
    void reported();

    /// To be asked once a second. Each true is followed by a look.
    bool isLookDue();

    /// All regions are about to be read.
    void lookBegins();
    void looked(bool found);

private:
    bool isEcho() const { return m_reports * m_echoSelections == m_echo * m_selections; }
    void rest();

    int m_reports = 0; ///< since the last look
    int m_quietSeconds = 0;
    int m_selections = 0; ///< since the last look began
    int m_vainLooks = 0;  ///< in a row
    // What followed looks in vain, alike so many times:
    int m_echo = 0;
    int m_echoSelections = 0;
    int m_echoesAlike = 0;
};

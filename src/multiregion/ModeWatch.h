#pragma once

/// Tells when to look at all regions for those that another client has switched.
///
/// A camera may notify of a region's mode whenever another region is selected. When it does so
/// within the selecting this is told apart. When it does so later, what it reports for some seconds
/// after a look that changed nothing is taken for that look's echo, and for longer if another such
/// look follows at once: no camera, however late, keeps the page selecting.
class ModeWatch
{
public:
    /// While it lives, the page is selecting a region.
    class Selecting
    {
    public:
        explicit Selecting(ModeWatch& reports)
            : m_reports(reports)
        {
            m_reports.m_echoSeconds = 0;
            m_reports.m_isSelecting = true;
        }
        ~Selecting() { m_reports.m_isSelecting = false; }
        Selecting(const Selecting&) = delete;
        Selecting& operator=(const Selecting&) = delete;

    private:
        ModeWatch& m_reports;
    };

    /// The camera has notified of a region's mode.
    void note();
    /// All regions are read anyway.
    void forget() { m_isReported = false; }

    /// To be asked once a second. Each true is followed by a look.
    bool isLookDue(bool isVisible);
    void lookBegins() { m_isEchoImmediate = false; }
    void lookEnded(bool isUnchanged);

private:
    bool m_isSelecting = false;
    bool m_isReported = false;      ///< while the page selected none
    bool m_isEchoImmediate = false; ///< the camera notifies within the selecting
    int m_echoSeconds = 0;          ///< for which reports are taken for echoes of a look
    int m_patience = 0;             ///< seconds, doubled by each look that changed nothing
};

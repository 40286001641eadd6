#pragma once

#include "features/CameraLink.h"
#include "host/TabExtensionInterface.h"
#include "multiregion/ModeWatch.h"

#include <QColor>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QVariant>
#include <QVector>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

class RegionCamera;
class RegionTabs;

/// Writes the camera's regions and reads them back. Its signals come when all of a call is done, so
/// that a receiver may call the page again, write the camera or delete the page.
///
/// What the camera does not tell stays as it is shown, and is read with readUntold().
///
/// The camera is asked for little, for each question takes it a while: looking at all regions asks
/// for their modes, and for the numbers of those that are shown. Limits are read where they may
/// have moved, and the rows of the open tab's table once, when all else of a call is done.
class RegionWriter : public QObject
{
    Q_OBJECT

public:
    /// Holds up the page for as long as what it answers lives.
    using Hold = std::function<std::shared_ptr<void>()>;

    RegionWriter(RegionCamera& camera, RegionTabs& tabs, CameraLink& link, Hold hold);

    /// A call of the page's, within others perhaps. When the outermost is done the open tab's table
    /// is read, what changed on the tabs is announced, and then the signals come. From the first
    /// selection on it holds up the page.
    class Call
    {
    public:
        explicit Call(RegionWriter& writer);
        ~Call();
        Q_DISABLE_COPY_MOVE(Call)

    private:
        const QPointer<RegionWriter> m_writer;
    };

    ModeWatch& watch() { return m_watch; }

    bool isCameraLost() const { return m_link.isLost(); }

    /// Logs when the camera refuses: it still reads and writes another region then.
    bool select(int region);
    /// Opens a region's tab to the camera: selects it, and reads its table if another was open.
    void open(int region);

    /// @param rect sensor pixels; the null one shrinks the region and does not activate it
    void save(int region, const QRect& rect);
    void writeActive(int region, bool on);
    void writeFeature(const QVector<int>& regions, const QString& name, const QVariant& value);

    /// Also what no write of the page's can have moved.
    void readWhole();
    void readAll();
    /// Reads all when the work is done, and not before.
    void load(const std::function<void()>& work);
    void readUntold();
    /// The region that the camera has selected.
    void readSelected();
    /// Looks for regions that another client has switched, when that is due; asked once a second.
    void lookIfDue();

    // When no call is under way any more:
    void tell(const std::function<void()>& emission);
    void tellCurrent(int region)
    {
        tell([=] { emit currentRegionChanged(region); });
    }
    /// Also within a call: before anything is written.
    void tellCurrentAtOnce(int region);
    void tellColor(int region, const QColor& color)
    {
        tell([=] { emit regionColorChanged(region, color); });
    }
    void log(const QString& text)
    {
        tell([=] { emit loggingMessage(ZebViewerLogMultiRegion, text); });
    }

signals:
    void loggingMessage(ZebViewerLogCategory category, const QString& text);
    void regionColorChanged(int regionNo, QColor color);
    void currentRegionChanged(int regionNo);
    void regionActivated(int regionNo, bool active);

private:
    void readTable();
    bool selectUnlessLost(int region);
    void returnToCurrent();
    void readRegion(int region);
    bool follow(int region);
    void show(int region);
    void tellActive(int region, bool active);
    void keepUntold(int region);
    void deliver();

    RegionCamera& m_camera;
    RegionTabs& m_tabs;
    CameraLink& m_link;
    const Hold m_hold;
    ModeWatch m_watch;
    std::deque<std::function<void()>> m_signals;
    QVector<int> m_untold;       ///< regions, in the order in which they are read again
    QSet<int> m_moved;           ///< regions of which more than the numbers is to be read
    std::optional<int> m_opened; ///< the region whose table was opened last
    int m_calls = 0;
    bool m_isLoading = false;

    // Of the outermost call:
    std::shared_ptr<void> m_memory;
    std::shared_ptr<void> m_held; ///< from the first selection on
    std::optional<int> m_selected;
    int m_heardBefore = 0;
};

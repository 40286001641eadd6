#pragma once

#include "multiregion/RegionQuestions.h"

#include <QMutex>
#include <QObject>
#include <QRect>

#include <functional>
#include <memory>
#include <optional>

class RegionCamera;
class RegionTabs;
class RegionWriter;

/// Switches regions as the arrangement can satisfy, and loads the default layouts.
class RegionActivation : public QObject
{
    Q_OBJECT

public:
    /// Nothing when the page is gone or hidden by then, or the camera streams or is arranged
    /// otherwise.
    using Ask = std::function<std::optional<Answer>(Question)>;

    RegionActivation(RegionCamera& camera, RegionTabs& tabs, RegionWriter& writer, Ask ask);

    void toggle(int region, bool on);
    /// @param color of the regions that are placed
    void loadDefaults(const QColor& color);

private:
    void switchOff(int region, const struct Toggle& toggle);
    void place(int region, Qt::Orientation axis);
    void completeTile(int region, const QRect& placed);
    std::optional<QRect> readPlacement(int region, Qt::Orientation axis);
    bool readOn(int region);
    void write(int region, const QRect& first, const QRect& placed);
    void applyDefaults(const QColor& color);

    RegionCamera& m_camera;
    RegionTabs& m_tabs;
    RegionWriter& m_writer;
    const Ask m_ask;
    const std::shared_ptr<QMutex> m_loadLock = std::make_shared<QMutex>();
};

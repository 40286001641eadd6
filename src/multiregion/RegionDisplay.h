#pragma once

#include "multiregion/RegionCamera.h"

#include <QColor>
#include <QVector>

/// Where the camera's regions are shown, numbered from 0.
class RegionDisplay
{
public:
    virtual ~RegionDisplay() = default;

    virtual int count() const = 0;
    bool has(int region) const { return region >= 0 && region < count(); }

    /// The region whose tab is open; none when there are no tabs.
    virtual int current() const = 0;
    virtual void open(int region) = 0;

    /// The arrangement's name.
    virtual QString mode() const = 0;
    /// As the camera had it when last read; its button may stay checked without a place for it.
    virtual bool isActive(int region) const = 0;
    virtual void setActive(int region, bool active) = 0;
    virtual void setChecked(int region, bool checked) = 0;
    virtual QColor color(int region) const = 0;
    virtual void setColor(int region, const QColor& color) = 0;

    // Of the region that is selected: its table reads on its own. False when the camera did not
    // tell all of that.
    virtual bool show(int region, const RegionState& state) = 0;
    virtual bool refreshTable(int region) = 0;

    /// The sensor area keeps its signals to itself until announce().
    virtual void silence(bool silent) = 0;
    virtual void announce() = 0;

    QVector<bool> active() const
    {
        QVector<bool> result;
        for (int region = 0; region < count(); ++region)
            result << isActive(region);
        return result;
    }
};

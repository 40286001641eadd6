#pragma once

#include "multiregion/label/DragChanges.h"

#include <QSet>

class LineRubberBand;
class RectangleRubberBand;
class RegionStore;

/// The drag of a band or of a line on the region label, from the press to what is to be reported.
/// It moves bands only; the regions change at its end.
class RegionDrag
{
public:
    explicit RegionDrag(const RegionStore* regions)
        : m_regions(regions)
    {
    }

    bool isRunning() const { return m_band || m_line; }
    /// The regions whose bands go with it.
    QVector<int> held() const;
    bool holds(int region) const { return held().contains(region); }
    /// Not for a line whose group is not as it was.
    bool isPossible() const;

    void begin(LineRubberBand* line);
    /// Tells the label, whose receivers may end the drag or delete the label.
    void begin(RectangleRubberBand* band, const QPoint& point);
    /// May tell of a conflict, to the same end.
    void moveTo(const QPoint& point);
    /// The drag goes on at a new scale, with what it would leave at the one @p before.
    void rescaleFrom(const SensorMapping& before);
    /// What a band tells meanwhile is reported at the end.
    void note(int region) { m_noted.insert(region); }
    QVector<RegionChange> end(const QPoint& point);
    /// Without a report.
    void drop();

private:
    QVector<RegionChange> changes(const SensorMapping& mapping) const;
    void boundLine();

    const RegionStore* const m_regions;
    LineRubberBand* m_line = nullptr;
    RectangleRubberBand* m_band = nullptr;
    QSet<int> m_noted;
};

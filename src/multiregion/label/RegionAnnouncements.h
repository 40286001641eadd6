#pragma once

#include <QMap>
#include <QRect>
#include <QStringList>

class MultiRubberBandLabel;

/// Emits a region label's ranges and constraints where they differ from what was emitted before.
/// While the label's signals are blocked, what has been announced stays as it is.
class RegionAnnouncements
{
public:
    explicit RegionAnnouncements(MultiRubberBandLabel* label);

    /// @param range sensor pixels
    void announceRange(int region, const QRect& range);
    /// @param constraints the features by constrained region; the others' are withdrawn
    void announceConstraints(const QMap<int, QStringList>& constraints);

private:
    MultiRubberBandLabel* const m_label;
    QMap<int, QRect> m_ranges;
    QMap<int, QStringList> m_constraints;
};

#include "multiregion/label/RegionAnnouncements.h"

#include "multiregion/label/MultiRubberBandLabel.h"

#include <utility>

RegionAnnouncements::RegionAnnouncements(MultiRubberBandLabel* label)
    : m_label(label)
{
}

void RegionAnnouncements::announceRange(int region, const QRect& range)
{
    if (m_label->signalsBlocked() || m_ranges.value(region) == range)
        return;
    m_ranges.insert(region, range);
    emit m_label->regionRangeChanged(region, range);
}

void RegionAnnouncements::announceConstraints(const QMap<int, QStringList>& constraints)
{
    if (m_label->signalsBlocked())
        return;
    const QMap<int, QStringList> before = std::exchange(m_constraints, constraints);
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (constraints.value(it.key()) != it.value())
            emit m_label->constraintsActivated(it.key(), {});
    }
    for (auto it = constraints.cbegin(); it != constraints.cend(); ++it) {
        if (before.value(it.key()) != it.value())
            emit m_label->constraintsActivated(it.key(), it.value());
    }
}

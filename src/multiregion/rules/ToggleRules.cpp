#include "multiregion/rules/ToggleRules.h"

#include "multiregion/rules/RegionText.h"

#include <algorithm>

namespace {

constexpr int tileCorner = 3; ///< shares its column with region 1 and its row with region 2

Toggle switchOff(const QVector<int>& regions, Question question = Question::None)
{
    Toggle toggle;
    toggle.kind = Toggle::SwitchOff;
    toggle.question = question;
    toggle.off = regions;
    return toggle;
}

/// Regions 1 and 2 lead a column and a row, which are complete with the corner only.
bool leadsPart(int region)
{
    return region == 1 || region == 2;
}

Toggle tileOff(int region, const QVector<bool>& active)
{
    if (region == tileCorner) {
        Toggle toggle = switchOff({2, tileCorner}, Question::RowOrColumnOff);
        toggle.offColumn = {1, tileCorner};
        return toggle;
    }
    if (leadsPart(region) && active.value(tileCorner))
        return switchOff({tileCorner, region},
                         region == 1 ? Question::ColumnOff : Question::RowOff);
    return switchOff({region});
}

Toggle stripOff(int region, const QVector<bool>& active)
{
    if (active.indexOf(true, region + 1) < 0)
        return switchOff({region});
    QVector<int> regions;
    for (int later = active.size() - 1; later >= region; --later)
        regions << later;
    return switchOff(regions, Question::SubsequentOff);
}

/// Why the inactive region cannot be activated; empty when it can.
QString obstacle(ArrangementMode mode, const QVector<bool>& checked, int region)
{
    switch (mode) {
    case ArrangementMode::Horizontal:
    case ArrangementMode::Vertical:
        if (!checked[region - 1])
            return RegionText::tr(
                "Regions must be activated continuously, ascending from Region0.");
        break;
    case ArrangementMode::Tile:
        // Regions 1 and 2 start a column and a row, in any order.
        if (region >= 3 && !std::all_of(checked.begin() + 1, checked.begin() + region, [](bool on) {
                return on;
            }))
            return RegionText::tr("Regions must share a common line space (activate all preceding "
                                  "regions first).");
        break;
    case ArrangementMode::Free:
        break;
    }
    return {};
}

} // namespace

Toggle toggleFor(ArrangementMode mode, int region, bool on, const QVector<bool>& active)
{
    const bool isTile = mode == ArrangementMode::Tile;
    Toggle toggle;
    if (mode == ArrangementMode::Free) {
        toggle = switchOff({region});
        if (on)
            toggle.kind = Toggle::SwitchOn;
    } else if (on || (isTile && region == 0)) {
        const bool below = mode == ArrangementMode::Vertical || (isTile && region == 2);
        toggle.axis = below ? Qt::Vertical : Qt::Horizontal;
        if (isTile && leadsPart(region) && active.value(tileCorner - region))
            toggle.question = region == 1 ? Question::ColumnOn : Question::RowOn;
    } else {
        toggle = isTile ? tileOff(region, active) : stripOff(region, active);
    }
    return toggle;
}

QVector<RegionButtonState> regionButtonStates(ArrangementMode mode, const QVector<bool>& active,
                                              const QVector<bool>& checked, bool streaming)
{
    QVector<RegionButtonState> states(active.size(), {!streaming, {}});
    for (int region = 1; region < active.size(); ++region) {
        const QString reason = active[region] ? QString() : obstacle(mode, checked, region);
        if (!reason.isEmpty())
            states[region] = {false, reason};
    }
    return states;
}

#include "multiregion/rules/RegionButtonRules.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MultiROIWidget)
};

/// Why the inactive region cannot be activated; empty when it can.
QString obstacle(ArrangementMode mode, const QVector<bool>& checked, int region)
{
    switch (mode) {
    case ArrangementMode::Horizontal:
    case ArrangementMode::Vertical:
        if (!checked[region - 1])
            return Text::tr("Regions must be activated continuously, ascending from Region0.");
        break;
    case ArrangementMode::Tile:
        // Regions 1 and 2 start a column and a row, in any order.
        if (region >= 3 && !std::all_of(checked.begin() + 1, checked.begin() + region, [](bool on) {
                return on;
            }))
            return Text::tr("Regions must share a common line space (activate all preceding "
                            "regions first).");
        break;
    case ArrangementMode::Free:
        break;
    }
    return {};
}

} // namespace

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

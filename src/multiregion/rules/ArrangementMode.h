#pragma once

#include <QStringList>

/// How the camera wants its regions arranged; the values are the codes of the region label. Every
/// entry that is not known leaves the regions free.
enum class ArrangementMode {
    Free = -1,
    Tile = 0,
    Horizontal = 1,
    Vertical = 2,
};

/// @param entry of the camera's "MultipleRegionArrangement"
inline ArrangementMode arrangementMode(const QString& entry)
{
    const int code = QStringList{QStringLiteral("Tile"), QStringLiteral("Horizontal"),
                                 QStringLiteral("Vertical")}
                         .indexOf(entry);
    return static_cast<ArrangementMode>(code);
}

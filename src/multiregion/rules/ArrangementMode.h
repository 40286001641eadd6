#pragma once

class QString;

/// How the camera wants its regions arranged; the values are the codes of the region label. Every
/// entry that is not known leaves the regions free.
enum class ArrangementMode {
    Free = -1,
    Tile = 0,
    Horizontal = 1,
    Vertical = 2,
};

/// @param entry of the camera's "MultipleRegionArrangement"
ArrangementMode arrangementMode(const QString& entry);

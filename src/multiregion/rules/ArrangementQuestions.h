#pragma once

#include <QString>

class QWidget;

// The questions of the multi-region page. Each answers once its box is closed; the page, and what
// it knew before, may be gone by then.

/// "row" or "column", as the messages have it.
enum class TilePart {
    Row,
    Column,
};

enum class TileAnswer {
    Row,
    Column,
    Cancel,
    None, ///< the box went without an answer
};

bool confirmDefaults(QWidget* parent);
bool confirmWholePartOff(QWidget* parent, const QString& mode, TilePart part);
bool confirmSubsequentOff(QWidget* parent, const QString& mode);
/// Whether a row or a column is to be deactivated.
TileAnswer askForTilePart(QWidget* parent);
/// False when the box went without an answer.
bool tellWholePartOn(QWidget* parent, const QString& mode, TilePart part);

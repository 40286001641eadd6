#include "multiregion/rules/ArrangementMode.h"

#include <QString>

ArrangementMode arrangementMode(const QString& entry)
{
    if (entry == QLatin1String("Tile"))
        return ArrangementMode::Tile;
    if (entry == QLatin1String("Horizontal"))
        return ArrangementMode::Horizontal;
    if (entry == QLatin1String("Vertical"))
        return ArrangementMode::Vertical;
    return ArrangementMode::Free;
}

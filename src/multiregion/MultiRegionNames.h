#pragma once

#include <QStringList>

// The camera's features that the multi-region page watches.
namespace MultiRegionNames {

inline const QString enable = QStringLiteral("MultipleRegionEnable");
inline const QString otherEnable = QStringLiteral("MultipleRegionsEnable");
inline const QString arrangement = QStringLiteral("MultipleRegionArrangement");
inline const QString selector = QStringLiteral("SubRegionSelector");
inline const QString regionMode = QStringLiteral("SubRegionMode");
inline const QString binningHorizontal = QStringLiteral("BinningHorizontal");
inline const QString binningVertical = QStringLiteral("BinningVertical");
inline const QString reverseX = QStringLiteral("ReverseX");
inline const QString reverseY = QStringLiteral("ReverseY");

inline const QStringList switchNames{enable, otherEnable};
inline const QStringList compatibilityNames{binningHorizontal, binningVertical, reverseX, reverseY};
inline const QStringList sensorNames{QStringLiteral("WidthMax"), QStringLiteral("HeightMax")};
inline const QStringList regionNames{
    regionMode,
    QStringLiteral("SubRegionStatus"),
    QStringLiteral("SubRegionOffsetX"),
    QStringLiteral("OffsetX"),
    QStringLiteral("SubRegionOffsetY"),
    QStringLiteral("SubRegionWidth"),
    QStringLiteral("Width"),
    QStringLiteral("SubRegionHeight"),
};

} // namespace MultiRegionNames

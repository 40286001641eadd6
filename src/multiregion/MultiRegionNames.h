#pragma once

#include <QStringList>

// The camera's features that the multi-region page reads and writes.
namespace FeatureNames {

inline const QString enable = QStringLiteral("MultipleRegionEnable");
inline const QString otherEnable = QStringLiteral("MultipleRegionsEnable");
inline const QString arrangement = QStringLiteral("MultipleRegionArrangement");
inline const QString selector = QStringLiteral("SubRegionSelector");
inline const QString regionMode = QStringLiteral("SubRegionMode");
inline const QString status = QStringLiteral("SubRegionStatus");
inline const QString offsetX = QStringLiteral("SubRegionOffsetX");
inline const QString olderOffsetX = QStringLiteral("OffsetX");
inline const QString offsetY = QStringLiteral("SubRegionOffsetY");
inline const QString width = QStringLiteral("SubRegionWidth");
inline const QString olderWidth = QStringLiteral("Width");
inline const QString height = QStringLiteral("SubRegionHeight");
inline const QString widthMax = QStringLiteral("WidthMax");
inline const QString heightMax = QStringLiteral("HeightMax");
inline const QString binningHorizontal = QStringLiteral("BinningHorizontal");
inline const QString binningVertical = QStringLiteral("BinningVertical");
inline const QString reverseX = QStringLiteral("ReverseX");
inline const QString reverseY = QStringLiteral("ReverseY");

inline const QStringList switchNames{enable, otherEnable};
inline const QStringList compatibilityNames{binningHorizontal, binningVertical, reverseX, reverseY};
inline const QStringList sensorNames{widthMax, heightMax};
inline const QStringList regionNames{regionMode, status, offsetX,    olderOffsetX,
                                     offsetY,    width,  olderWidth, height};

} // namespace FeatureNames

#pragma once

#include <QStringList>

// The camera's features around its automatic functions.
namespace FeatureNames {

inline const QString aoiOffsetX = QStringLiteral("AutofunctionAOIOffsetX");
inline const QString aoiOffsetY = QStringLiteral("AutofunctionAOIOffsetY");
inline const QString aoiWidth = QStringLiteral("AutofunctionAOIWidth");
inline const QString aoiHeight = QStringLiteral("AutofunctionAOIHeight");
inline const QString aoiEnable = QStringLiteral("AutofunctionAOIEnable");
inline const QString aoiShowArea = QStringLiteral("AutofunctionAOIShowArea");

inline const QString autoModeOffsetX = QStringLiteral("AutoModeRegionOffsetX");
inline const QString autoModeOffsetY = QStringLiteral("AutoModeRegionOffsetY");
inline const QString autoModeWidth = QStringLiteral("AutoModeRegionWidth");
inline const QString autoModeHeight = QStringLiteral("AutoModeRegionHeight");

inline const QString dspLeft = QStringLiteral("DSPSubregionLeft");
inline const QString dspTop = QStringLiteral("DSPSubregionTop");
inline const QString dspRight = QStringLiteral("DSPSubregionRight");
inline const QString dspBottom = QStringLiteral("DSPSubregionBottom");

inline const QString exposureAutoMin = QStringLiteral("ExposureAutoMin");
inline const QString exposureAutoMax = QStringLiteral("ExposureAutoMax");
inline const QString exposureAutoTimebase = QStringLiteral("ExposureAutoTimebase");
inline const QString exposureTime = QStringLiteral("ExposureTime");
inline const QString exposureTimeAbs = QStringLiteral("ExposureTimeAbs");
inline const QString intensityRegion = QStringLiteral("IntensityControllerRegion");

inline const QString imageWidth = QStringLiteral("Width");
inline const QString imageHeight = QStringLiteral("Height");

inline const QStringList regionNumbers{
    dspTop,     dspLeft,    dspRight,       dspBottom,     aoiHeight,       aoiWidth,
    aoiOffsetX, aoiOffsetY, autoModeHeight, autoModeWidth, autoModeOffsetX, autoModeOffsetY};
inline const QStringList exposureLimits{exposureAutoMin, exposureAutoMax, exposureAutoTimebase};

} // namespace FeatureNames

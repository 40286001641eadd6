#pragma once

#include <QStringList>

// The camera's features that the module reads and writes by name, each name once.
namespace FeatureNames {

inline const QString deviceVendorName = QStringLiteral("DeviceVendorName");

inline const QString pixelFormat = QStringLiteral("PixelFormat");
inline const QString binningSelector = QStringLiteral("BinningSelector");
inline const QString binningHorizontal = QStringLiteral("BinningHorizontal");
inline const QString binningVertical = QStringLiteral("BinningVertical");
inline const QString reverseX = QStringLiteral("ReverseX");
inline const QString reverseY = QStringLiteral("ReverseY");

inline const QString offsetX = QStringLiteral("OffsetX");
inline const QString offsetY = QStringLiteral("OffsetY");
inline const QString width = QStringLiteral("Width");
inline const QString height = QStringLiteral("Height");
inline const QString widthMax = QStringLiteral("WidthMax");
inline const QString heightMax = QStringLiteral("HeightMax");
inline const QString sensorWidth = QStringLiteral("SensorWidth");
inline const QString sensorHeight = QStringLiteral("SensorHeight");

inline const QString multipleRegionEnable = QStringLiteral("MultipleRegionEnable");
inline const QString multipleRegionsEnable = QStringLiteral("MultipleRegionsEnable");
inline const QString multipleRegionArrangement = QStringLiteral("MultipleRegionArrangement");
inline const QString subRegionSelector = QStringLiteral("SubRegionSelector");
inline const QString subRegionMode = QStringLiteral("SubRegionMode");
inline const QString subRegionStatus = QStringLiteral("SubRegionStatus");
inline const QString subRegionOffsetX = QStringLiteral("SubRegionOffsetX");
inline const QString subRegionOffsetY = QStringLiteral("SubRegionOffsetY");
inline const QString subRegionWidth = QStringLiteral("SubRegionWidth");
inline const QString subRegionHeight = QStringLiteral("SubRegionHeight");

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
inline const QString intensityControllerRegion = QStringLiteral("IntensityControllerRegion");

/// One direction of the image region.
struct ImageAxis
{
    QString offset;
    QString size;
    QString maximum; ///< the maximum size
    QString sensor;  ///< stands in for a missing maximum
};
inline const ImageAxis imageColumns{offsetX, width, widthMax, sensorWidth};
inline const ImageAxis imageRows{offsetY, height, heightMax, sensorHeight};

inline const QStringList autoRegion{
    dspTop,     dspLeft,    dspRight,       dspBottom,     aoiHeight,       aoiWidth,
    aoiOffsetX, aoiOffsetY, autoModeHeight, autoModeWidth, autoModeOffsetX, autoModeOffsetY};
inline const QStringList exposureLimits{exposureAutoMin, exposureAutoMax, exposureAutoTimebase};

inline const QStringList multipleRegionSwitches{multipleRegionEnable, multipleRegionsEnable};
/// They change how a picture lies on the sensor.
inline const QStringList pictureGeometry{binningHorizontal, binningVertical, reverseX, reverseY};
inline const QStringList sizeLimits{widthMax, heightMax};
inline const QStringList subRegion{subRegionMode, subRegionStatus,  subRegionOffsetX,
                                   offsetX,       subRegionOffsetY, subRegionWidth,
                                   width,         subRegionHeight};

} // namespace FeatureNames

#pragma once

#include "multiregion/rules/RegionPlacement.h"

#include <QMap>
#include <QRect>
#include <QString>

/// What a default layout depends on, as read from the camera.
struct LayoutRequest
{
    QSize sensor;
    SizeRange width;
    SizeRange height;
    int regionCount = 0;
};

struct DefaultLayout
{
    QMap<int, QRect> regions; ///< by region number, in sensor pixels
    QString message;          ///< why there are none, for the log; empty otherwise
};

/// The layout of up to four regions for an arrangement's name, truncated to whole pixels. One that
/// leaves a region no size places none.
DefaultLayout defaultLayout(const QString& mode, const LayoutRequest& request);

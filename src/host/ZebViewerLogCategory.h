#pragma once

#include <QMetaType>

/// Log categories of the viewer; first argument of every page's loggingMessage() signal.
enum ZebViewerLogCategory : int {
    ZebViewerLogGeneral = 0,
    ZebViewerLogFeatureAccess = 1,
    ZebViewerLogMultiRegion = 2,
};

Q_DECLARE_METATYPE(ZebViewerLogCategory)

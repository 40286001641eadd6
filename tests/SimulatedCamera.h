#pragma once

#include "features/FeatureManager.h"

#include "simulator/Camera.h"

#include <QSharedPointer>
#include <QVector>

/// The camera's features as the viewer hands them to a page.
inline QSharedPointer<QVector<ZebCPP::FeaturePtr>> featureList(const sim::Camera& camera)
{
    const auto features = camera.features();
    return QSharedPointer<QVector<ZebCPP::FeaturePtr>>::create(features.begin(), features.end());
}

inline FeatureManager::Wrappers wrappers(const sim::Camera& camera)
{
    return FeatureManager::wrap(*featureList(camera));
}

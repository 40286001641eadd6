#pragma once

#include "features/FeatureManager.h"

/// A wrapper for each of a camera's features, in their order. They lie side by side in memory and
/// live as long as any one of them is held: a search by name goes over all of them.
FeatureManager::Wrappers wrapFeatures(const QVector<ZebCPP::FeaturePtr>& features);

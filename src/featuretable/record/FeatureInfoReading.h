#pragma once

#include "featuretable/record/FeatureInfo.h"

class FeatureManager;

/// Reads all that a row of the feature table shows and its editor needs.
FeatureInfo readFeatureInfo(FeatureManager& manager, const QString& name);

/// Reads again what changes while a camera is open: value, range and writability. Names, texts,
/// representation and unit are those of @p known.
FeatureInfo rereadFeatureInfo(FeatureManager& manager, const FeatureInfo& known);

#pragma once

#include "featuretable/record/FeatureInfo.h"

class FeatureManager;

/// Reads a row of the feature table into the record of that name, by one look-up. What the camera
/// does not tell stays; false when a value, a bound or the writability is among it.
bool readFeatureInfo(FeatureManager& manager, FeatureInfo& info);

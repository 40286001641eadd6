#pragma once

#include "featuretable/record/FeatureInfo.h"

class FeatureManager;

/// Reads all that a row of the feature table shows and its editor needs into the record of that
/// name, by one look-up. What the camera does not tell stays as it is; false when a value, a bound
/// or the writability is among it.
bool readFeatureInfo(FeatureManager& manager, FeatureInfo& info);

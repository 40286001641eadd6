#pragma once

#include "featuretable/record/FeatureInfo.h"

class DelegateWidget;

/// The editor of a whole number: a spin box and, where the range allows it, a slider; digits where
/// the range is beyond a spin box.
DelegateWidget* createIntegerEditor(const FeatureInfo& info, QWidget* parent);

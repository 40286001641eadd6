#pragma once

#include "featuretable/record/FeatureInfo.h"

class DelegateWidget;

/// A spin box and, where the range allows it, a slider; digits where it is beyond a spin box.
DelegateWidget* createIntegerEditor(const FeatureInfo& info, QWidget* parent);

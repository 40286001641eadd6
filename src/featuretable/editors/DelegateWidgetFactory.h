#pragma once

#include "featuretable/record/FeatureInfo.h"

class DelegateWidget;
class QWidget;

/// The editor for a feature, by its kind of value and its representation; null when it is not
/// writable or has none.
DelegateWidget* createDelegateWidget(const FeatureInfo& info, QWidget* parent);

#pragma once

#include "featuretable/record/FeatureInfo.h"

/// How a value cell shows its display value: bare, as its editor writes it, independent of the
/// locale. Commands show "Execute", raw data nothing.
QString cellText(const FeatureInfo& info, const QVariant& value);

/// The cell as a screen reader tells it: display name, value and unit.
QString accessibleCellText(const FeatureInfo& info, const QVariant& value);

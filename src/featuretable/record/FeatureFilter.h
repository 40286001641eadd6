#pragma once

#include "featuretable/record/FeatureInfo.h"

/// Whether the name, the display name or the description contains @p filter, in any case of
/// letters. Blanks around the filter do not count; an empty filter matches everything.
bool matchesFilter(const FeatureInfo& info, const QString& filter);

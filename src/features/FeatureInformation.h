#pragma once

#include <QString>

class FeatureReader;

/// The rich-text description of a feature, for tool tips.
QString featureInformation(FeatureReader& feature);

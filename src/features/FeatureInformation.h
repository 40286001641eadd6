#pragma once

#include <QString>

class ZebFeatureWrapper;

/// The rich-text description of a feature, for tool tips.
QString featureInformation(ZebFeatureWrapper& feature);

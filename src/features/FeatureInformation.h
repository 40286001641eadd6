#pragma once

#include <QString>

class FeatureReader;

QString featureInformation(FeatureReader& feature);

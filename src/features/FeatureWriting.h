#pragma once

#include "features/FeatureReader.h"

#include <QString>
#include <QVariant>

/// Writes of one feature, by its data type. Each answers whether the camera took the value as it
/// was given. Failures of numbers are logged under @p name; nothing is tried again but where it
/// says so.
namespace FeatureWriting {

/// Integers are aligned to the increment, counted from 0, and all numbers clamped to the range. A
/// float that the camera refuses is followed by one write of its present value on the increment.
bool writeNumber(FeatureReader& feature, const QString& name, double value);
/// Of an integer or a float whose access, range and increment are known.
bool writeNumber(FeatureReader& feature, const QString& name, double value,
                 const Reading<double>& limits);

/// Numbers as above, whole ones with all their 64 bits; texts and entries; bytes; commands run.
bool writeVariant(FeatureReader& feature, const QString& name, const QVariant& value);

} // namespace FeatureWriting

#pragma once

#include "features/FeatureReader.h"

#include <QString>
#include <QVariant>

/// Writes of one feature, by its data type. Failures of numbers are logged under @p name; nothing
/// is tried again, except where the functions say so.
namespace FeatureWriting {

struct Result
{
    std::optional<double> value; ///< What the camera holds afterwards, if it tells.
    bool taken;                  ///< The camera accepted the value as it was given to it.
};

/// Integers are aligned to the increment, counted from 0, and all numbers clamped to the range;
/// what is not writable is only read back. A float that the camera refuses is followed by one write
/// of its present value on the increment. A feature that is no number answers @p value, not taken.
Result writeNumber(FeatureReader& feature, const QString& name, double value);

bool writeText(ZebFeatureWrapper& feature, const QString& value);

/// Any type: numbers as writeNumber(), whole numbers with all their 64 bits; texts and entries as
/// text; bytes; commands run. False when the feature cannot be written or refuses.
bool writeVariant(FeatureReader& feature, const QString& name, const QVariant& value);

} // namespace FeatureWriting

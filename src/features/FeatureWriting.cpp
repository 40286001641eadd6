#include "features/FeatureWriting.h"

#include "features/FeatureReading.h"
#include "features/NumberConversion.h"
#include "features/SdkValues.h"

#include <QByteArray>
#include <QDebug>

#include <algorithm>
#include <limits>

namespace FeatureWriting {

using FeatureReading::isWritable;
using FeatureReading::missingNumber;
using FeatureReading::Range;
using FeatureReading::readDataType;
using FeatureReading::readIncrement;
using FeatureReading::readRange;
using FeatureReading::readValue;

namespace {

template <typename Number> Number clamped(Number value, const Range<Number>& range)
{
    if (value < range.minimum)
        return range.minimum;
    if (value > range.maximum)
        return range.maximum;
    return value;
}

void logWriteFailure(const char* where, const QString& name, ZebErrorType result)
{
    qDebug() << where << name << " : " << static_cast<int>(result);
}

Result writeInteger(ZebFeatureWrapper& feature, const QString& name, int64_t value)
{
    Range<int64_t> range = readRange<int64_t>(feature);
    const int64_t increment = readIncrement<int64_t>(feature);
    if (increment > 0) {
        range.maximum = range.maximum / increment * increment;
        value = value / increment * increment;
    }
    value = clamped(value, range);

    bool taken = false;
    if (isWritable(feature)) {
        const ZebErrorType result = feature.SetValue(value);
        taken = result == Sdk::success;
        if (!taken)
            logWriteFailure("Error: FeatureManager::SetValue:Int: ", name, result);
    }
    return {static_cast<double>(readValue<int64_t>(feature, -1)), taken};
}

// A float that the camera refuses is written once more, as its present value on the increment.
void writeAlignedPresentValue(ZebFeatureWrapper& feature, const QString& name, double present)
{
    const double increment = readIncrement<double>(feature);
    if (!(increment > 0.0))
        return;
    const double aligned = static_cast<double>(toUInt64(present / increment)) * increment;
    const ZebErrorType result = feature.SetValue(aligned);
    if (result != Sdk::success)
        logWriteFailure("Error: FeatureManager::SetValue:Double: ", name, result);
}

Result writeFloat(ZebFeatureWrapper& feature, const QString& name, double value)
{
    value = clamped(value, readRange<double>(feature));

    bool taken = false;
    if (isWritable(feature)) {
        taken = feature.SetValue(value) == Sdk::success;
        const double present = readValue<double>(feature, missingNumber);
        if (!taken)
            writeAlignedPresentValue(feature, name, present);
    }
    return {readValue<double>(feature, missingNumber), taken};
}

Result writeBoolean(ZebFeatureWrapper& feature, const QString& name, bool value)
{
    bool taken = false;
    if (isWritable(feature)) {
        const ZebErrorType result = feature.SetValue(value);
        taken = result == Sdk::success;
        if (!taken)
            logWriteFailure("Error: FeatureManager::SetValue:Bool: ", name, result);
    }
    return {readValue<bool>(feature, false) ? 1.0 : 0.0, taken};
}

bool writeBytes(ZebFeatureWrapper& feature, const QByteArray& bytes)
{
    return feature.SetValue(std::vector<uint8_t>(bytes.begin(), bytes.end())) == Sdk::success;
}

// Whole numbers keep all 64 bits; only what is a floating-point number goes through a double.
int64_t toInteger(const QVariant& value, bool* isNumber)
{
    if (value.type() == QVariant::ULongLong)
        return static_cast<int64_t>(
            std::min<qulonglong>(value.toULongLong(), std::numeric_limits<int64_t>::max()));
    const auto type = static_cast<QMetaType::Type>(value.type());
    if (type != QMetaType::Double && type != QMetaType::Float) {
        const qlonglong integer = value.toLongLong(isNumber);
        if (*isNumber)
            return integer;
    }
    return toInt64(value.toDouble(isNumber));
}

bool isTrue(const QVariant& value)
{
    return value.type() == QVariant::String ? value.toBool() : value.toDouble() > 0.0;
}

} // namespace

Result writeNumber(ZebFeatureWrapper& feature, const QString& name, double value)
{
    switch (readDataType(feature)) {
    case Sdk::integerType:
        return writeInteger(feature, name, toInt64(value));
    case Sdk::floatType:
        return writeFloat(feature, name, value);
    case Sdk::booleanType:
        return writeBoolean(feature, name, value > 0.0);
    default:
        return {value, false};
    }
}

bool writeText(ZebFeatureWrapper& feature, const QString& value)
{
    return feature.SetValue(value.toStdString().c_str()) == Sdk::success;
}

bool writeVariant(ZebFeatureWrapper& feature, const QString& name, const QVariant& value)
{
    const ZebFeatureDataType type = readDataType(feature);
    if (!isWritable(feature) || (!value.isValid() && type != Sdk::commandType))
        return false;

    bool isNumber = true;
    switch (type) {
    case Sdk::integerType: {
        const int64_t integer = toInteger(value, &isNumber);
        return isNumber && writeInteger(feature, name, integer).taken;
    }
    case Sdk::floatType: {
        const double number = value.toDouble(&isNumber);
        return isNumber && writeFloat(feature, name, number).taken;
    }
    case Sdk::booleanType:
        return writeBoolean(feature, name, isTrue(value)).taken;
    case Sdk::enumerationType:
    case Sdk::stringType:
        return writeText(feature, value.toString());
    case Sdk::commandType:
        return feature.RunCommand() == Sdk::success;
    case Sdk::rawType:
        return writeBytes(feature, value.toByteArray());
    default:
        return false;
    }
}

} // namespace FeatureWriting

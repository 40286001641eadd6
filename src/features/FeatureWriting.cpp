#include "features/FeatureWriting.h"

#include "features/NumberConversion.h"
#include "features/SdkValues.h"

#include <QByteArray>
#include <QDebug>

#include <algorithm>
#include <limits>

namespace FeatureWriting {

namespace {

constexpr int limits = FeatureReader::Range | FeatureReader::Increment;

template <typename Number> Number clamped(Number value, Number minimum, Number maximum)
{
    if (value < minimum)
        return minimum;
    return value > maximum ? maximum : value;
}

bool isTaken(ZebErrorType result, const char* where, const QString& name)
{
    if (result != Sdk::success)
        qDebug() << where << name << " : " << static_cast<int>(result);
    return result == Sdk::success;
}

Result writeInteger(FeatureReader& feature, const QString& name, int64_t value)
{
    bool taken = false;
    if (feature.isWritable()) {
        const Reading<int64_t> reading = feature.integer(limits);
        int64_t maximum = reading.maximum.value_or(-1);
        const int64_t increment = reading.increment.value_or(-1);
        if (increment > 0) {
            maximum = maximum / increment * increment;
            value = value / increment * increment;
        }
        value = clamped(value, reading.minimum.value_or(-1), maximum);
        taken = isTaken(feature->SetValue(value), "Error: FeatureManager::SetValue:Int: ", name);
    }
    return {feature.value(), taken};
}

// A float that the camera refuses is written once more, as its present value on the increment.
void writeAlignedPresentValue(FeatureReader& feature, const QString& name)
{
    const double present = feature.value().value_or(-1.0);
    const double increment = feature.floating(FeatureReader::Increment).increment.value_or(-1.0);
    if (!(increment > 0.0))
        return;
    const double aligned = static_cast<double>(toUInt64(present / increment)) * increment;
    isTaken(feature->SetValue(aligned), "Error: FeatureManager::SetValue:Double: ", name);
}

Result writeFloat(FeatureReader& feature, const QString& name, double value)
{
    bool taken = false;
    if (feature.isWritable()) {
        const Reading<double> reading = feature.floating(FeatureReader::Range);
        value = clamped(value, reading.minimum.value_or(-1.0), reading.maximum.value_or(-1.0));
        taken = feature->SetValue(value) == Sdk::success;
        if (!taken)
            writeAlignedPresentValue(feature, name);
    }
    return {feature.value(), taken};
}

Result writeBoolean(FeatureReader& feature, const QString& name, bool value)
{
    const bool taken = feature.isWritable()
        && isTaken(feature->SetValue(value), "Error: FeatureManager::SetValue:Bool: ", name);
    return {feature.value(), taken};
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

Result writeNumber(FeatureReader& feature, const QString& name, double value)
{
    switch (feature.dataType()) {
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

bool writeVariant(FeatureReader& feature, const QString& name, const QVariant& value)
{
    const ZebFeatureDataType type = feature.dataType();
    if (!feature.isWritable() || (!value.isValid() && type != Sdk::commandType))
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
        return writeText(*feature.feature(), value.toString());
    case Sdk::commandType:
        return feature->RunCommand() == Sdk::success;
    case Sdk::rawType:
        return writeBytes(*feature.feature(), value.toByteArray());
    default:
        return false;
    }
}

} // namespace FeatureWriting

#include "features/FeatureWriting.h"

#include "features/NumberConversion.h"
#include "features/SdkValues.h"

#include <QByteArray>
#include <QDebug>

#include <algorithm>
#include <limits>
#include <optional>

namespace FeatureWriting {

namespace {

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

constexpr int integerLimits = FeatureReader::Range | FeatureReader::Increment;

std::optional<int64_t> toWhole(const std::optional<double>& number)
{
    return number ? std::optional(toInt64(*number)) : std::nullopt;
}

bool writeInteger(FeatureReader& feature, const QString& name, int64_t value,
                  const Reading<int64_t>& limits)
{
    int64_t maximum = limits.maximum.value_or(-1);
    const int64_t increment = limits.increment.value_or(-1);
    if (increment > 0) {
        maximum = maximum / increment * increment;
        value = value / increment * increment;
    }
    value = clamped(value, limits.minimum.value_or(-1), maximum);
    return isTaken(feature.write(value), "Error: FeatureManager::SetValue:Int: ", name);
}

bool writeFloat(FeatureReader& feature, const QString& name, double value,
                const Reading<double>& limits)
{
    value = clamped(value, limits.minimum.value_or(-1.0), limits.maximum.value_or(-1.0));
    if (feature.write(value) == Sdk::success)
        return true;
    const double present = feature.value().value_or(-1.0);
    const double increment
        = feature.read<double>(FeatureReader::Increment).increment.value_or(-1.0);
    if (increment > 0.0) {
        const double aligned = static_cast<double>(toUInt64(present / increment)) * increment;
        isTaken(feature.write(aligned), "Error: FeatureManager::SetValue:Double: ", name);
    }
    return false;
}

bool writeBoolean(FeatureReader& feature, const QString& name, bool value)
{
    return isTaken(feature.write(value), "Error: FeatureManager::SetValue:Bool: ", name);
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

bool writeNumber(FeatureReader& feature, const QString& name, double value)
{
    switch (feature.isWritable() ? feature.dataType() : Sdk::unknownType) {
    case Sdk::integerType:
        return writeInteger(feature, name, toInt64(value), feature.read<int64_t>(integerLimits));
    case Sdk::floatType:
        return writeFloat(feature, name, value, feature.read<double>(FeatureReader::Range));
    case Sdk::booleanType:
        return writeBoolean(feature, name, value > 0.0);
    default:
        return false;
    }
}

bool writeNumber(FeatureReader& feature, const QString& name, double value,
                 const Reading<double>& limits)
{
    if (!limits.isWritable.value_or(false))
        return false;
    if (feature.dataType() == Sdk::floatType)
        return writeFloat(feature, name, value, limits);
    const Reading<int64_t> whole{
        {}, toWhole(limits.minimum), toWhole(limits.maximum), toWhole(limits.increment)};
    return feature.dataType() == Sdk::integerType
        && writeInteger(feature, name, toInt64(value), whole);
}

bool writeVariant(FeatureReader& feature, const QString& name, const QVariant& value)
{
    const ZebFeatureDataType type = feature.dataType();
    if ((!value.isValid() && type != Sdk::commandType) || !feature.isWritable())
        return false;
    bool isNumber = true;
    switch (type) {
    case Sdk::integerType: {
        const int64_t integer = toInteger(value, &isNumber);
        return isNumber
            && writeInteger(feature, name, integer, feature.read<int64_t>(integerLimits));
    }
    case Sdk::floatType: {
        const double number = value.toDouble(&isNumber);
        return isNumber
            && writeFloat(feature, name, number, feature.read<double>(FeatureReader::Range));
    }
    case Sdk::booleanType:
        return writeBoolean(feature, name, isTrue(value));
    case Sdk::enumerationType:
    case Sdk::stringType:
        return feature.write(value.toString().toStdString().c_str()) == Sdk::success;
    case Sdk::commandType:
        return feature.run() == Sdk::success;
    case Sdk::rawType: {
        const QByteArray bytes = value.toByteArray();
        return feature.write(std::vector<uint8_t>(bytes.begin(), bytes.end())) == Sdk::success;
    }
    default:
        return false;
    }
}

} // namespace FeatureWriting

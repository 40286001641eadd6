#include "features/FeatureReader.h"

#include <utility>

namespace {

template <typename Type> constexpr bool isNumber = false;
template <> constexpr bool isNumber<std::int64_t> = true;
template <> constexpr bool isNumber<double> = true;

template <typename From> std::optional<double> toNumber(const std::optional<From>& number)
{
    return number ? std::make_optional(static_cast<double>(*number)) : std::nullopt;
}

template <typename From> Reading<double> toNumbers(const Reading<From>& reading)
{
    return {toNumber(reading.value),
            toNumber(reading.minimum),
            toNumber(reading.maximum),
            toNumber(reading.increment),
            reading.exists,
            reading.isWritable,
            reading.isComplete};
}

} // namespace

FeatureReader::FeatureReader(ZebFeatureWrapperPtr feature, const QString& name,
                             std::shared_ptr<CameraLink> link, bool isKnown)
    : m_feature(std::move(feature))
    , m_name(name)
    , m_link(std::move(link))
    , m_isKnown(isKnown)
{
}

template <typename Call> bool FeatureReader::ask(Call&& call)
{
    if (!m_feature || m_link->isClosed())
        return false;
    const CameraLink::Clock::time_point begin = CameraLink::Clock::now();
    const ZebErrorType result = call(*m_feature);
    m_link->told(m_name, result, CameraLink::since(begin));
    return result == Sdk::success;
}

ZebFeatureDataType FeatureReader::dataType()
{
    auto type = Sdk::unknownType;
    if (!m_type && m_feature && m_feature->GetDataType(type) == Sdk::success)
        m_type = type;
    return m_type.value_or(Sdk::unknownType);
}

QString FeatureReader::text(TextGetter getter) const
{
    std::string text;
    return m_feature && (m_feature.get()->*getter)(text) == Sdk::success
        ? QString::fromStdString(text)
        : QString();
}

QStringList FeatureReader::entries() const
{
    std::vector<std::string> values;
    if (!m_feature || m_feature->GetValues(values) != Sdk::success)
        return {};
    QStringList entries;
    for (const std::string& value : values)
        entries.append(QString::fromStdString(value));
    return entries;
}

template <typename Type> bool FeatureReader::isOf()
{
    if constexpr (std::is_same_v<Type, QString>)
        return m_feature != nullptr;
    constexpr auto own = std::is_same_v<Type, bool> ? Sdk::booleanType
        : std::is_same_v<Type, double>              ? Sdk::floatType
                                                    : Sdk::integerType;
    return dataType() == own;
}

template <typename Type> std::optional<Type> FeatureReader::valueOf()
{
    Type value{};
    const auto get = [&value](ZebFeatureWrapper& feature) { return feature.GetValue(value); };
    return ask(get) ? std::make_optional(value) : std::nullopt;
}

template <> std::optional<QString> FeatureReader::valueOf<QString>()
{
    const auto text = valueOf<std::string>();
    return text ? std::make_optional(QString::fromStdString(*text)) : std::nullopt;
}

std::optional<bool> FeatureReader::flag(FlagGetter getter)
{
    bool flag = false;
    const auto get = [&](ZebFeatureWrapper& feature) { return (feature.*getter)(flag); };
    return ask(get) ? std::make_optional(flag) : std::nullopt;
}

/// False when the camera keeps back a part that it has.
template <typename Number> bool FeatureReader::readLimits(Reading<Number>& reading, int parts)
{
    Number minimum{};
    Number maximum{};
    const auto readRange
        = [&](ZebFeatureWrapper& feature) { return feature.GetRange(minimum, maximum); };
    if ((parts & Range) != 0 && ask(readRange)) {
        reading.minimum = minimum;
        reading.maximum = maximum;
    }
    Number increment{};
    const auto readIncrement
        = [&](ZebFeatureWrapper& feature) { return feature.GetIncrement(increment); };
    if ((parts & Increment) != 0 && ask(readIncrement))
        reading.increment = increment;
    return ((parts & Range) == 0 || reading.minimum)
        && ((parts & Increment) == 0 || reading.increment
            || !flag(&ZebFeatureWrapper::HasIncrement).value_or(true));
}

template <typename Type> Reading<Type> FeatureReader::read(int parts)
{
    Reading<Type> reading;
    reading.exists = m_feature != nullptr;
    if (!isOf<Type>()) {
        // That there is no such feature, or none of the type, is known as well.
        reading.isComplete = m_feature ? m_type.has_value() : m_isKnown;
        return reading;
    }
    bool isComplete = true;
    if ((parts & Value) != 0) {
        reading.value = valueOf<Type>();
        if (!reading.value && m_link->isDoubtful())
            return reading;
        isComplete = reading.value || !flag(&ZebFeatureWrapper::IsReadable).value_or(true);
    }
    if ((parts & Access) != 0) {
        const auto isWritable = flag(&ZebFeatureWrapper::IsWritable);
        reading.isWritable = isWritable.value_or(false);
        isComplete = isComplete && isWritable;
    }
    if constexpr (isNumber<Type>)
        isComplete = readLimits(reading, parts) && isComplete;
    reading.isComplete = isComplete;
    return reading;
}

template Reading<std::int64_t> FeatureReader::read(int);
template Reading<double> FeatureReader::read(int);
template Reading<bool> FeatureReader::read(int);
template Reading<QString> FeatureReader::read(int);

Reading<double> FeatureReader::number(int parts)
{
    switch (dataType()) {
    case Sdk::integerType:
        return toNumbers(read<std::int64_t>(parts));
    case Sdk::booleanType:
        return toNumbers(read<bool>(parts));
    default:
        return read<double>(parts);
    }
}

Reading<double> FeatureReader::fieldNumber(int parts)
{
    if (dataType() == Sdk::integerType) {
        auto reading = read<std::int64_t>(parts);
        if (reading.maximum && reading.increment.value_or(0) > 0)
            reading.maximum = *reading.maximum / *reading.increment * *reading.increment;
        return toNumbers(reading);
    }
    auto reading = read<double>(parts);
    if (dataType() == Sdk::floatType && !(reading.increment.value_or(0.0) > 0.0))
        reading.increment = 0.01;
    return reading;
}

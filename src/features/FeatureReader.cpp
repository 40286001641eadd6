#include "features/FeatureReader.h"

#include <utility>

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
    return m_feature && !m_link->isClosed()
        && m_link->hear(m_name, [&] { return call(*m_feature); }) == Sdk::success;
}

ZebFeatureDataType FeatureReader::dataType()
{
    if (m_type || !m_feature)
        return m_type.value_or(Sdk::unknownType);
    auto type = Sdk::unknownType;
    if (m_feature->GetDataType(type) != Sdk::success)
        return Sdk::unknownType;
    m_type = type;
    return type;
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

template <typename Type> std::optional<Type> FeatureReader::valueOf()
{
    Type value{};
    if (!ask([&](ZebFeatureWrapper& feature) { return feature.GetValue(value); }))
        return std::nullopt;
    return value;
}

std::optional<QString> FeatureReader::textValue()
{
    const auto text = valueOf<std::string>();
    return text ? std::make_optional(QString::fromStdString(*text)) : std::nullopt;
}

std::optional<bool> FeatureReader::flag(FlagGetter getter)
{
    bool flag = false;
    if (!ask([&](ZebFeatureWrapper& feature) { return (feature.*getter)(flag); }))
        return std::nullopt;
    return flag;
}

/// What no read can tell: that there is no such feature, or none of the type.
template <typename Type> Reading<Type> FeatureReader::nothing() const
{
    Reading<Type> reading;
    reading.exists = m_feature != nullptr;
    reading.isComplete = m_feature ? m_type.has_value() : m_isKnown;
    return reading;
}

template <typename Type>
Reading<Type> FeatureReader::readingOf(std::optional<Type> value, int parts)
{
    Reading<Type> reading;
    reading.exists = m_feature != nullptr;
    reading.value = std::move(value);
    if (isGivenUp(reading, parts))
        return reading;
    reading.isComplete = (parts & Value) == 0 || reading.value
        || !flag(&ZebFeatureWrapper::IsReadable).value_or(true);
    if ((parts & Access) != 0) {
        const auto isWritable = flag(&ZebFeatureWrapper::IsWritable);
        reading.isWritable = isWritable.value_or(false);
        reading.isComplete = reading.isComplete && isWritable;
    }
    return reading;
}

/// A camera that lets the value wait and then fails is not asked for the rest.
template <typename Type>
bool FeatureReader::isGivenUp(const Reading<Type>& reading, int parts) const
{
    return (parts & Value) != 0 && !reading.value && m_link->isDoubtful();
}

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

template <typename Number> Reading<Number> FeatureReader::typed(int parts)
{
    auto reading
        = readingOf((parts & Value) != 0 ? valueOf<Number>() : std::optional<Number>(), parts);
    if (!isGivenUp(reading, parts))
        reading.isComplete = readLimits(reading, parts) && reading.isComplete;
    return reading;
}

Reading<std::int64_t> FeatureReader::integer(int parts)
{
    return dataType() == Sdk::integerType ? typed<std::int64_t>(parts) : nothing<std::int64_t>();
}

Reading<double> FeatureReader::floating(int parts)
{
    return dataType() == Sdk::floatType ? typed<double>(parts) : nothing<double>();
}

namespace {

template <typename To, typename From> std::optional<To> converted(const std::optional<From>& number)
{
    return number ? std::make_optional(static_cast<To>(*number)) : std::nullopt;
}

template <typename From> Reading<double> toNumbers(const Reading<From>& reading)
{
    return {converted<double>(reading.value),
            converted<double>(reading.minimum),
            converted<double>(reading.maximum),
            converted<double>(reading.increment),
            reading.exists,
            reading.isWritable,
            reading.isComplete};
}

} // namespace

Reading<double> FeatureReader::number(int parts)
{
    switch (dataType()) {
    case Sdk::integerType:
        return toNumbers(integer(parts));
    case Sdk::booleanType:
        return toNumbers(readingOf(valueOf<bool>(), parts));
    default:
        return floating(parts);
    }
}

Reading<double> FeatureReader::fieldNumber(int parts)
{
    if (dataType() == Sdk::integerType) {
        Reading<std::int64_t> reading = integer(parts);
        if (reading.maximum && reading.increment.value_or(0) > 0)
            reading.maximum = *reading.maximum / *reading.increment * *reading.increment;
        return toNumbers(reading);
    }
    Reading<double> reading = number(parts);
    if (dataType() == Sdk::floatType && !(reading.increment.value_or(0.0) > 0.0))
        reading.increment = 0.01;
    return reading;
}

Reading<bool> FeatureReader::boolean()
{
    if (dataType() == Sdk::booleanType)
        return readingOf(valueOf<bool>(), Value | Access);
    if (dataType() != Sdk::integerType)
        return nothing<bool>();
    const auto value = valueOf<std::int64_t>();
    return readingOf(value ? std::make_optional(*value > 0) : std::nullopt, Value | Access);
}

Reading<QString> FeatureReader::textReading()
{
    return m_feature ? readingOf(textValue(), Value | Access) : nothing<QString>();
}

bool FeatureReader::askValue()
{
    const ZebFeatureDataType type = dataType();
    if (type == Sdk::enumerationType || type == Sdk::stringType)
        return textValue() || true;
    value();
    return type == Sdk::integerType || type == Sdk::floatType || type == Sdk::booleanType;
}

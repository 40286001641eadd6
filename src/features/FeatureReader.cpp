#include "features/FeatureReader.h"

#include <tuple>
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

template <typename Answer, typename Call>
std::optional<Answer> FeatureReader::ask(Part part, Call&& call)
{
    if (!m_feature || m_link->isClosed())
        return std::nullopt;
    const CameraLink::Question question(m_feature.get(), part);
    const std::any known = m_link->remembered(question);
    if (const auto* answer = std::any_cast<Answer>(&known))
        return *answer;
    Answer answer{};
    const CameraLink::Clock::time_point begin = CameraLink::Clock::now();
    const ZebErrorType result = call(*m_feature, answer);
    m_link->told(m_name, result, CameraLink::since(begin));
    if (result != Sdk::success)
        return std::nullopt;
    m_link->remember(question, answer);
    return answer;
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
    return ask<Type>(Value, [](auto& feature, Type& value) { return feature.GetValue(value); });
}

template <> std::optional<QString> FeatureReader::valueOf<QString>()
{
    const auto text = valueOf<std::string>();
    return text ? std::make_optional(QString::fromStdString(*text)) : std::nullopt;
}

std::optional<bool> FeatureReader::flag(Part part)
{
    return ask<bool>(part, [part](auto& feature, bool& flag) {
        return part == Access     ? feature.IsWritable(flag)
            : part == Readability ? feature.IsReadable(flag)
                                  : feature.HasIncrement(flag);
    });
}

/// False when the camera keeps back a part that it has.
template <typename Number> bool FeatureReader::readLimits(Reading<Number>& reading, int parts)
{
    using Bounds = std::pair<Number, Number>;
    const auto getRange = [](auto& feature, Bounds& bounds) {
        return feature.GetRange(bounds.first, bounds.second);
    };
    const auto getIncrement
        = [](auto& feature, Number& increment) { return feature.GetIncrement(increment); };
    if (const auto bounds = (parts & Range) != 0 ? ask<Bounds>(Range, getRange) : std::nullopt)
        std::tie(reading.minimum, reading.maximum) = *bounds;
    if ((parts & Increment) != 0)
        reading.increment = ask<Number>(Increment, getIncrement);
    return ((parts & Range) == 0 || reading.minimum)
        && ((parts & Increment) == 0 || reading.increment || !flag(Stepping).value_or(true));
}

template <typename Type> Reading<Type> FeatureReader::read(int parts)
{
    Reading<Type> reading;
    reading.exists = m_feature != nullptr;
    if (!isOf<Type>()) {
        // That there is no such feature, or none of the type, is known as well.
        reading.isComplete = m_feature ? m_type.has_value() : m_isKnown;
        if (reading.isComplete)
            reading.isWritable = false;
        return reading;
    }
    bool isComplete = true;
    if ((parts & Value) != 0) {
        reading.value = valueOf<Type>();
        if (!reading.value && m_link->isDoubtful())
            return reading;
        isComplete = reading.value || !flag(Readability).value_or(true);
    }
    if ((parts & Access) != 0) {
        reading.isWritable = flag(Access);
        isComplete = isComplete && reading.isWritable;
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

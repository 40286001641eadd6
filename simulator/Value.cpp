#include "Value.h"

#include <cstdio>
#include <limits>
#include <utility>

namespace sim {

namespace {

std::int64_t saturated(double number)
{
    constexpr double limit = 9223372036854775808.0;
    if (number != number)
        return 0;
    if (number >= limit)
        return std::numeric_limits<std::int64_t>::max();
    if (number <= -limit)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(number);
}

} // namespace

// Not inline: GCC 12 under AddressSanitizer takes the alternatives of an inlined variant for
// uninitialised.
Value::Value() = default;
Value::~Value() = default;
Value::Value(const Value& other) = default;
Value::Value(Value&& other) noexcept = default;
Value& Value::operator=(const Value& other) = default;
Value& Value::operator=(Value&& other) noexcept = default;
Value::Value(const char* text)
    : m_data(std::string(text))
{
}
Value::Value(std::string text)
    : m_data(std::move(text))
{
}
Value::Value(Bytes bytes)
    : m_data(std::move(bytes))
{
}

Value Value::held(bool boolean)
{
    Value value;
    value.m_data = boolean;
    return value;
}

Value Value::held(std::int64_t integer)
{
    Value value;
    value.m_data = integer;
    return value;
}

Value Value::held(double number)
{
    Value value;
    value.m_data = number;
    return value;
}

std::int64_t Value::toInteger() const
{
    if (const auto* integer = std::get_if<std::int64_t>(&m_data))
        return *integer;
    if (const auto* number = std::get_if<double>(&m_data))
        return saturated(*number);
    return toBoolean() ? 1 : 0;
}

double Value::toNumber() const
{
    if (const auto* number = std::get_if<double>(&m_data))
        return *number;
    return static_cast<double>(toInteger());
}

bool Value::toBoolean() const
{
    if (const auto* boolean = std::get_if<bool>(&m_data))
        return *boolean;
    if (const auto* integer = std::get_if<std::int64_t>(&m_data))
        return *integer != 0;
    if (const auto* number = std::get_if<double>(&m_data))
        return *number != 0.0;
    return false;
}

std::string Value::toText() const
{
    if (const auto* text = std::get_if<std::string>(&m_data))
        return *text;
    if (const auto* integer = std::get_if<std::int64_t>(&m_data))
        return std::to_string(*integer);
    if (const auto* boolean = std::get_if<bool>(&m_data))
        return *boolean ? "true" : "false";
    if (const auto* number = std::get_if<double>(&m_data)) {
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "%.12g", *number);
        return buffer;
    }
    if (const auto* bytes = std::get_if<Bytes>(&m_data))
        return std::to_string(bytes->size()) + " bytes";
    return {};
}

Bytes Value::toBytes() const
{
    const auto* bytes = std::get_if<Bytes>(&m_data);
    return bytes ? *bytes : Bytes();
}

} // namespace sim

#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace sim {

using Bytes = std::vector<std::uint8_t>;

/// What a feature holds: an integer, a floating-point number, a boolean, a text (enumeration
/// entries are told by their name), bytes, or nothing (commands).
///
/// Built implicitly from plain C++ values, so that `write("Width", 640)` and `write("Gain", 1.5)`
/// need no casts.
class Value
{
public:
    Value();
    ~Value();
    Value(const Value& other);
    Value(Value&& other) noexcept;
    Value& operator=(const Value& other);
    Value& operator=(Value&& other) noexcept;
    template <typename Number, std::enable_if_t<std::is_arithmetic_v<Number>, int> = 0>
    Value(Number number)
        : Value(held(static_cast<Held<Number>>(number)))
    {
    }
    Value(const char* text);
    Value(std::string text);
    Value(Bytes bytes);

    template <typename Type> bool holds() const { return std::holds_alternative<Type>(m_data); }
    bool isEmpty() const { return holds<std::monostate>(); }

    /// Conversions never fail: numbers convert among each other (saturating, NaN becomes 0), a text
    /// or bytes are 0 as a number, and every value has a text.
    std::int64_t toInteger() const;
    double toNumber() const;
    bool toBoolean() const;
    std::string toText() const;
    Bytes toBytes() const;

    friend bool operator==(const Value& a, const Value& b) { return a.m_data == b.m_data; }
    friend bool operator!=(const Value& a, const Value& b) { return !(a == b); }

private:
    template <typename Number>
    using Held
        = std::conditional_t<std::is_same_v<Number, bool>, bool,
                             std::conditional_t<std::is_integral_v<Number>, std::int64_t, double>>;

    static Value held(bool boolean);
    static Value held(std::int64_t integer);
    static Value held(double number);

    std::variant<std::monostate, std::int64_t, double, bool, std::string, Bytes> m_data;
};

} // namespace sim

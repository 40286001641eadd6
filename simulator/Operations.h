#pragma once

#include "Operation.h"

namespace sim {

/// A set of operations: `Operations(Operation::GetValue) | Operation::GetRange`.
class Operations
{
public:
    constexpr Operations() = default;
    constexpr Operations(Operation operation)
        : m_bits(1u << static_cast<std::uint32_t>(operation))
    {
    }

    constexpr bool contains(Operation operation) const
    {
        return (m_bits & Operations(operation).m_bits) != 0;
    }
    constexpr Operations operator|(Operations other) const
    {
        return fromBits(m_bits | other.m_bits);
    }
    constexpr Operations without(Operations other) const
    {
        return fromBits(m_bits & ~other.m_bits);
    }

    static constexpr Operations all() { return fromBits((1u << operationCount) - 1u); }
    static constexpr Operations writes()
    {
        return Operations(Operation::SetValue) | Operation::RunCommand;
    }
    /// What the SDK cannot answer from its memory.
    static constexpr Operations fromCamera()
    {
        return writes() | Operation::GetValue | Operation::GetRange | Operation::HasIncrement
            | Operation::GetIncrement | Operation::GetValidValueSet | Operation::IsValueAvailable
            | Operation::IsCommandDone | Operation::IsReadable | Operation::IsWritable;
    }
    /// What a client asks the camera: values, ranges, increments, access, entries.
    static constexpr Operations questions()
    {
        return fromCamera().without(writes()) | Operation::GetValues | Operation::GetEntry
            | Operation::GetEntries;
    }
    static constexpr Operations texts()
    {
        return Operations(Operation::GetName) | Operation::GetDisplayName | Operation::GetCategory
            | Operation::GetUnit | Operation::GetRepresentation | Operation::GetToolTip
            | Operation::GetDescription;
    }

private:
    static constexpr Operations fromBits(std::uint32_t bits)
    {
        Operations set;
        set.m_bits = bits;
        return set;
    }

    std::uint32_t m_bits = 0;
};

} // namespace sim

#include "TwoCallAnswer.h"

#include <algorithm>
#include <limits>

namespace sim {

std::uint32_t answeredLength(std::size_t items, const Failure& failure, bool hasBuffer)
{
    constexpr std::uint32_t growth = 100;
    const auto length = static_cast<std::uint32_t>(items);
    switch (failure.kind) {
    case Failure::Kind::EmptyLength:
        return 0;
    case Failure::Kind::HugeLength:
        return std::numeric_limits<std::uint32_t>::max();
    case Failure::Kind::Grow:
        return hasBuffer ? length + growth : length;
    default:
        return length;
    }
}

ZebErrorType answerText(const std::string& text, const Failure& failure, char* buffer,
                        std::uint32_t& length)
{
    const std::uint32_t capacity = buffer ? length : 0;
    const std::size_t needed = text.size() + 1;
    length = answeredLength(needed, failure, buffer != nullptr);
    if (!buffer)
        return ZebErrorSuccess;
    if (capacity < needed)
        return ZebErrorBadParameter;
    std::copy_n(text.c_str(), needed, buffer);
    if (failure.kind == Failure::Kind::Unterminated || failure.kind == Failure::Kind::Grow)
        std::fill(buffer + text.size(), buffer + capacity, '?');
    return ZebErrorSuccess;
}

} // namespace sim

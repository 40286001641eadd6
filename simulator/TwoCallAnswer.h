#pragma once

#include "Failure.h"

#include <ZebCPP/ZebCPP.h>

#include <cstdint>
#include <string>
#include <vector>

namespace sim {

/// The camera's side of the two-call pattern, with the failures that a client must stand. Without a
/// buffer the length is answered; a buffer that is too short answers ZebErrorBadParameter and the
/// length. Nothing is ever written beyond the length that the client gave.
ZebErrorType answerText(const std::string& text, const Failure& failure, char* buffer,
                        std::uint32_t& length);

/// The length to answer for @p items, which is the true one unless the failure says otherwise.
std::uint32_t answeredLength(std::size_t items, const Failure& failure, bool hasBuffer);

template <typename Item>
ZebErrorType answerList(const std::vector<Item>& items, const Failure& failure, Item* buffer,
                        std::uint32_t& count)
{
    const std::uint32_t capacity = buffer ? count : 0;
    count = answeredLength(items.size(), failure, buffer != nullptr);
    if (!buffer)
        return ZebErrorSuccess;
    if (capacity < items.size())
        return ZebErrorBadParameter;
    for (std::size_t i = 0; i < items.size(); ++i)
        buffer[i] = failure.kind == Failure::Kind::NullEntries ? Item() : items[i];
    return ZebErrorSuccess;
}

} // namespace sim

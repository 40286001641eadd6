#pragma once

#include "features/SdkValues.h"

#include <ZebCPP/ZebCPP.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// The SDK's way to fetch texts and lists: ask for the length with a null buffer, then fill a
/// buffer of that length. A camera may change between the two calls: the second length is believed
/// up to what was allocated. Lengths beyond the limits answer Sdk::resources. Nothing throws.
namespace TwoCallPattern {

constexpr std::uint32_t maximumTextBytes = 16u << 20;

/// Texts up to this length, such as names, are fetched without an allocation.
constexpr std::uint32_t shortTextBytes = 128;

template <typename Item> constexpr std::uint32_t maximumItems = maximumTextBytes / sizeof(Item);
template <> inline constexpr std::uint32_t maximumItems<std::uint8_t> = 256u << 20; ///< raw values

/// @p fetch is called as fetch(char* buffer, std::uint32_t& length). On success @p text holds the
/// characters before the first NUL; on failure it is left alone.
template <typename Fetch> ZebErrorType read(std::string& text, Fetch&& fetch) noexcept
try {
    std::uint32_t length = 0;
    auto* const noBuffer = static_cast<char*>(nullptr);
    if (const ZebErrorType result = fetch(noBuffer, length); result != Sdk::success)
        return result;
    if (length == 0) {
        text.clear();
        return Sdk::success;
    }
    if (length > maximumTextBytes)
        return Sdk::resources;

    std::array<char, shortTextBytes> shortBuffer;
    std::vector<char> longBuffer(length > shortTextBytes ? length : 0);
    char* const buffer = longBuffer.empty() ? shortBuffer.data() : longBuffer.data();
    char* const end = buffer + length;
    std::fill(buffer, end, '\0');
    const ZebErrorType result = fetch(buffer, length);
    // Byte by byte: wider reads of what the camera has just written in parts would wait for it.
    if (result == Sdk::success)
        text.assign(buffer, std::find(buffer, end, '\0'));
    return result;
} catch (...) {
    return Sdk::resources;
}

/// @p fetch is called as fetch(Item* buffer, std::uint32_t capacity, std::uint32_t& count); @p
/// items is assigned on success only.
template <typename Item, typename Fetch>
ZebErrorType readList(std::vector<Item>& items, Fetch&& fetch) noexcept
try {
    std::uint32_t count = 0;
    auto* const noBuffer = static_cast<Item*>(nullptr);
    if (const ZebErrorType result = fetch(noBuffer, 0u, count); result != Sdk::success)
        return result;
    if (count == 0) {
        items.clear();
        return Sdk::success;
    }
    if (count > maximumItems<Item>)
        return Sdk::resources;

    std::vector<Item> buffer(count);
    const std::uint32_t capacity = count;
    const ZebErrorType result = fetch(buffer.data(), capacity, count);
    if (result == Sdk::success) {
        buffer.resize(std::min(count, capacity));
        items = std::move(buffer);
    }
    return result;
} catch (...) {
    return Sdk::resources;
}

/// The common form of readList(): the capacity is passed in through the count itself.
template <typename Item, typename Fetch>
ZebErrorType read(std::vector<Item>& items, Fetch&& fetch) noexcept
{
    return readList(items, [&fetch](Item* buffer, std::uint32_t capacity, std::uint32_t& count) {
        count = capacity;
        return fetch(buffer, count);
    });
}

} // namespace TwoCallPattern

#pragma once

#include <optional>

/// What the camera tells of one feature; empty is what it does not tell.
template <class N> struct Reading
{
    std::optional<N> value;
    std::optional<N> minimum;
    std::optional<N> maximum;
    std::optional<N> increment;
    bool exists = false;
    std::optional<bool> isWritable = std::nullopt;
    /// Nothing was kept back that the camera has: that there is no such feature, no increment or
    /// nothing to read is known as well. Otherwise what is shown stays, and is to be read again.
    bool isComplete = false;
};

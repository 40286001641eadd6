#pragma once

#include <cstdint>
#include <string>

namespace sim {

/// One entry of an enumeration feature.
struct EnumItem
{
    std::string name;
    std::int64_t value;
};

} // namespace sim

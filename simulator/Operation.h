#pragma once

#include <cstdint>

namespace sim {

/// The operations of a feature, named as in the SDK; overloads share one name.
enum class Operation : std::uint32_t {
    GetValue,
    GetValues,
    GetEntry,
    GetEntries,
    GetRange,
    HasIncrement,
    GetIncrement,
    GetValidValueSet,
    IsValueAvailable,
    SetValue,
    RunCommand,
    IsCommandDone,
    GetName,
    GetDisplayName,
    GetCategory,
    GetUnit,
    GetRepresentation,
    GetToolTip,
    GetDescription,
    GetDataType,
    GetFlags,
    GetVisibility,
    GetSelectedFeatures,
    IsReadable,
    IsWritable,
    RegisterObserver,
    UnregisterObserver,
};

constexpr std::uint32_t operationCount = 27;

const char* operationName(Operation operation);

} // namespace sim

#include "Operation.h"

#include <array>

namespace sim {

const char* operationName(Operation operation)
{
    static constexpr std::array<const char*, operationCount> names = {
        "GetValue",
        "GetValues",
        "GetEntry",
        "GetEntries",
        "GetRange",
        "HasIncrement",
        "GetIncrement",
        "GetValidValueSet",
        "IsValueAvailable",
        "SetValue",
        "RunCommand",
        "IsCommandDone",
        "GetName",
        "GetDisplayName",
        "GetCategory",
        "GetUnit",
        "GetRepresentation",
        "GetToolTip",
        "GetDescription",
        "GetDataType",
        "GetFlags",
        "GetVisibility",
        "GetSelectedFeatures",
        "IsReadable",
        "IsWritable",
        "RegisterObserver",
        "UnregisterObserver",
    };
    return names[static_cast<std::size_t>(operation)];
}

} // namespace sim

#pragma once

#include "Node.h"

namespace genicam {

/// Writes what the node holds, an entry by name or number; refuses what the library would let pass:
/// values of another type, off the grid or out of range, entries that are not available.
ZebErrorType writeValue(ArvGcFeatureNode* node, const Value& value, GError** error);
ZebErrorType writeBytes(ArvGcFeatureNode* node, const std::uint8_t* data, std::uint32_t size,
                        GError** error);

} // namespace genicam

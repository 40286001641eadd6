#pragma once

#include "Glib.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

// What a node of a camera's description says, and what the library leaves to its users: the order
// of entries and selected features, access as a whole, increments and absurd ranges. Everything
// here needs the device's lock.
namespace genicam {

/// Empty: cannot be read.
using Value = std::variant<std::monostate, std::int64_t, double, bool, std::string>;

struct Access
{
    bool isReadable = false;
    bool isWritable = false;
};

/// Minimum and maximum; the increment is 0 when any value does.
template <typename Number> struct Range
{
    Number minimum;
    Number maximum;
    Number increment;

    bool isAbsurd() const { return !(minimum <= maximum); } ///< also when one is no number
    bool holds(Number value) const;
};

/// Empty for null.
std::string textOf(const char* source);

ZebFeatureDataType typeOf(ArvGcFeatureNode* node);
Access accessOf(ArvGcFeatureNode* node, GError** error);

/// An enumeration's value is its number.
Value readValue(ArvGcFeatureNode* node, GError** error);
template <typename Number> Range<Number> readRange(ArvGcFeatureNode* node, GError** error);
bool isCommandDone(ArvGcFeatureNode* node, GError** error);

ZebFeatureVisibilityType visibilityOf(ArvGcFeatureNode* node);
/// Whether the value stands in a register of the camera.
bool hasRegister(ArvGcFeatureNode* node);
std::string unitOf(ArvGcFeatureNode* node);
std::string representationOf(ArvGcFeatureNode* node);

/// The properties of a node that name another one, with that one, in the description's order.
using Link = std::pair<ArvGcPropertyNodeType, ArvGcFeatureNode*>;
std::vector<Link> linksOf(ArvGcFeatureNode* node);

struct Entry
{
    ArvGcFeatureNode* node;
    std::string name;

    std::int64_t readNumber(GError** error) const;
    bool isAvailable(GError** error) const;
};

/// An enumeration's entries, in the description's order.
using Entries = std::vector<Entry>;
Entries entriesOf(ArvGcFeatureNode* node);
/// Null when there is none.
const Entry* findEntry(const Entries& entries, std::string_view name);
const Entry* findEntry(const Entries& entries, std::int64_t number, GError** error);

} // namespace genicam

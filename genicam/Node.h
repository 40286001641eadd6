#pragma once

#include "Glib.h"

#include <array>
#include <optional>
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

/// What never changes.
enum TextKind {
    Name,
    DisplayName,
    ToolTip,
    Description,
    Unit,
    Notation,
    TextCount
};
using Texts = std::array<std::string, TextCount>;

ZebFeatureDataType typeOf(ArvGcFeatureNode* node);
ZebFeatureVisibilityType visibilityOf(ArvGcFeatureNode* node);
Texts textsOf(ArvGcFeatureNode* node);

/// Implemented and available.
bool isThere(ArvGcFeatureNode* node, GError** error);
Access accessOf(ArvGcFeatureNode* node, GError** error);
/// An enumeration's value is its number.
Value readValue(ArvGcFeatureNode* node, GError** error);
template <typename Number> Range<Number> readRange(ArvGcFeatureNode* node, GError** error);
bool isCommandDone(ArvGcFeatureNode* node, GError** error);

// Writing refuses what the library would let pass: values of another type, off the grid or out of
// range, entries that are not available. Entries are written by name or number.
ZebErrorType write(ArvGcFeatureNode* node, std::int64_t value, GError** error);
ZebErrorType write(ArvGcFeatureNode* node, double value, GError** error);
ZebErrorType write(ArvGcFeatureNode* node, bool value, GError** error);
ZebErrorType write(ArvGcFeatureNode* node, const std::string& value, GError** error);
ZebErrorType write(ArvGcFeatureNode* node, const std::vector<std::uint8_t>& value, GError** error);

/// The properties of a node that name another one, with that one, in the description's order.
using Link = std::pair<ArvGcPropertyNodeType, ArvGcFeatureNode*>;
std::vector<Link> linksOf(ArvGcFeatureNode* node);

struct Entry
{
    ArvGcFeatureNode* node;
    std::string name;

    std::int64_t readNumber(GError** error) const
    {
        return arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(node), error);
    }
};

/// An enumeration's entries, in the description's order.
using Entries = std::vector<Entry>;
Entries entriesOf(ArvGcFeatureNode* node);
std::optional<Entry> findEntry(const Entries& entries, const std::string& name, GError** error);
std::optional<Entry> findEntry(const Entries& entries, std::int64_t number, GError** error);

} // namespace genicam

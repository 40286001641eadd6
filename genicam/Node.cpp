#include "Node.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace genicam {

namespace {

template <typename Visit> void forEachChild(ArvGcFeatureNode* node, Visit&& visit)
{
    for (ArvDomNode* child = arv_dom_node_get_first_child(ARV_DOM_NODE(node)); child;
         child = arv_dom_node_get_next_sibling(child))
        visit(child);
}

} // namespace

template <> bool Range<std::int64_t>::holds(std::int64_t value) const
{
    const auto distance = static_cast<std::uint64_t>(value) - static_cast<std::uint64_t>(minimum);
    return isAbsurd()
        || (value >= minimum && value <= maximum
            && (increment <= 1 || distance % static_cast<std::uint64_t>(increment) == 0));
}

template <> bool Range<double>::holds(double value) const
{
    if (!std::isfinite(value))
        return false;
    if (isAbsurd())
        return true;
    constexpr double tolerance = 1e-6;
    const double steps = increment > 0.0 ? (value - minimum) / increment : 0.0;
    return value >= minimum && value <= maximum && std::abs(steps - std::round(steps)) < tolerance;
}

std::string textOf(const char* source)
{
    return source ? source : "";
}

ZebFeatureDataType typeOf(ArvGcFeatureNode* node)
{
    // Enumerations are integers and typed registers are registers, too.
    if (ARV_IS_GC_ENUMERATION(node))
        return ZebFeatureDataEnum;
    if (ARV_IS_GC_BOOLEAN(node))
        return ZebFeatureDataBool;
    if (ARV_IS_GC_COMMAND(node))
        return ZebFeatureDataCommand;
    if (ARV_IS_GC_FLOAT(node))
        return ZebFeatureDataFloat;
    if (ARV_IS_GC_INTEGER(node))
        return ZebFeatureDataInt;
    if (ARV_IS_GC_STRING(node))
        return ZebFeatureDataString;
    return ARV_IS_GC_REGISTER(node) ? ZebFeatureDataRaw : ZebFeatureDataUnknown;
}

Access accessOf(ArvGcFeatureNode* node, GError** error)
{
    if (!arv_gc_feature_node_is_implemented(node, error) || *error
        || !arv_gc_feature_node_is_available(node, error) || *error)
        return {};
    const ArvGcAccessMode mode = arv_gc_feature_node_get_actual_access_mode(node);
    const bool isCommand = ARV_IS_GC_COMMAND(node);
    Access access;
    access.isReadable = mode != ARV_GC_ACCESS_MODE_WO && !isCommand;
    access.isWritable
        = mode != ARV_GC_ACCESS_MODE_RO && !arv_gc_feature_node_is_locked(node, error) && !*error;
    return access;
}

Value readValue(ArvGcFeatureNode* node, GError** error)
{
    Value value;
    switch (typeOf(node)) {
    case ZebFeatureDataEnum:
        value = std::int64_t{arv_gc_enumeration_get_int_value(ARV_GC_ENUMERATION(node), error)};
        break;
    case ZebFeatureDataBool:
        value = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(node), error) != FALSE;
        break;
    case ZebFeatureDataFloat:
        value = arv_gc_float_get_value(ARV_GC_FLOAT(node), error);
        break;
    case ZebFeatureDataInt:
        value = std::int64_t{arv_gc_integer_get_value(ARV_GC_INTEGER(node), error)};
        break;
    case ZebFeatureDataString:
        value = textOf(arv_gc_string_get_value(ARV_GC_STRING(node), error));
        break;
    default:
        break;
    }
    return *error ? Value() : value;
}

template <> Range<std::int64_t> readRange(ArvGcFeatureNode* node, GError** error)
{
    ArvGcInteger* const integer = ARV_GC_INTEGER(node);
    Range<std::int64_t> range{arv_gc_integer_get_min(integer, error), 0, 1};
    if (!*error)
        range.maximum = arv_gc_integer_get_max(integer, error);
    if (!*error)
        range.increment = std::max<std::int64_t>(1, arv_gc_integer_get_inc(integer, error));
    // Registers without one answer this; other nodes say 1.
    if (g_error_matches(*error, ARV_GC_ERROR, ARV_GC_ERROR_PROPERTY_NOT_DEFINED))
        g_clear_error(error);
    return range;
}

template <> Range<double> readRange(ArvGcFeatureNode* node, GError** error)
{
    ArvGcFloat* const number = ARV_GC_FLOAT(node);
    Range<double> range{arv_gc_float_get_min(number, error), 0.0, 0.0};
    if (!*error)
        range.maximum = arv_gc_float_get_max(number, error);
    // The library says the smallest of all numbers where the description says nothing.
    if (!*error)
        range.increment = arv_gc_float_get_inc(number, error);
    if (!(range.increment > DBL_MIN) || !std::isfinite(range.increment))
        range.increment = 0.0;
    return range;
}

bool isCommandDone(ArvGcFeatureNode* node, GError** error)
{
    std::int64_t executed = 0;
    ArvGcFeatureNode* flag = nullptr;
    forEachChild(node, [&](ArvDomNode* child) {
        if (!ARV_IS_GC_PROPERTY_NODE(child))
            return;
        auto* const property = ARV_GC_PROPERTY_NODE(child);
        const auto type = arv_gc_property_node_get_node_type(property);
        if (type == ARV_GC_PROPERTY_NODE_TYPE_COMMAND_VALUE
            || type == ARV_GC_PROPERTY_NODE_TYPE_P_COMMAND_VALUE)
            executed = arv_gc_property_node_get_int64(property, error);
    });
    for (const auto& [type, linked] : linksOf(node)) {
        if (type == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE && ARV_IS_GC_INTEGER(linked))
            flag = linked;
    }
    if (*error || !flag || !accessOf(flag, error).isReadable)
        return true; // a register that cannot be read cannot tell
    return arv_gc_integer_get_value(ARV_GC_INTEGER(flag), error) != executed;
}

std::string unitOf(ArvGcFeatureNode* node)
{
    if (typeOf(node) == ZebFeatureDataFloat)
        return textOf(arv_gc_float_get_unit(ARV_GC_FLOAT(node)));
    return typeOf(node) == ZebFeatureDataInt ? textOf(arv_gc_integer_get_unit(ARV_GC_INTEGER(node)))
                                             : std::string();
}

std::string representationOf(ArvGcFeatureNode* node)
{
    static const char* const names[] = {"Linear",    "Logarithmic", "Boolean",   "PureNumber",
                                        "HexNumber", "IPV4Address", "MACAddress"};
    const ZebFeatureDataType type = typeOf(node);
    const int index = type == ZebFeatureDataFloat
        ? arv_gc_float_get_representation(ARV_GC_FLOAT(node))
        : type == ZebFeatureDataInt ? arv_gc_integer_get_representation(ARV_GC_INTEGER(node))
                                    : ARV_GC_REPRESENTATION_UNDEFINED;
    return index < 0 ? "" : names[index];
}

std::vector<Link> linksOf(ArvGcFeatureNode* node)
{
    std::vector<Link> links;
    forEachChild(node, [&](ArvDomNode* child) {
        if (!ARV_IS_GC_PROPERTY_NODE(child))
            return;
        auto* const property = ARV_GC_PROPERTY_NODE(child);
        const ArvGcPropertyNodeType type = arv_gc_property_node_get_node_type(property);
        if (type <= ARV_GC_PROPERTY_NODE_TYPE_P_UNKNONW)
            return;
        ArvGcNode* const linked = arv_gc_property_node_get_linked_node(property);
        if (ARV_IS_GC_FEATURE_NODE(linked))
            links.emplace_back(type, ARV_GC_FEATURE_NODE(linked));
    });
    return links;
}

ZebFeatureVisibilityType visibilityOf(ArvGcFeatureNode* node)
{
    switch (arv_gc_feature_node_get_visibility(node)) {
    case ARV_GC_VISIBILITY_INVISIBLE:
        return ZebFeatureVisibilityInvisible;
    case ARV_GC_VISIBILITY_GURU:
        return ZebFeatureVisibilityGuru;
    case ARV_GC_VISIBILITY_EXPERT:
        return ZebFeatureVisibilityExpert;
    default:
        return ZebFeatureVisibilityBeginner;
    }
}

bool hasRegister(ArvGcFeatureNode* node)
{
    if (ARV_IS_GC_REGISTER_NODE(node))
        return true;
    const std::vector<Link> links = linksOf(node);
    return std::any_of(links.begin(), links.end(), [](const Link& link) {
        return link.first == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE && hasRegister(link.second);
    });
}

std::int64_t Entry::readNumber(GError** error) const
{
    return arv_gc_enum_entry_get_value(ARV_GC_ENUM_ENTRY(node), error);
}

bool Entry::isAvailable(GError** error) const
{
    return arv_gc_feature_node_is_implemented(node, error) && !*error
        && arv_gc_feature_node_is_available(node, error) && !*error;
}

Entries entriesOf(ArvGcFeatureNode* node)
{
    Entries entries;
    forEachChild(node, [&](ArvDomNode* child) {
        if (ARV_IS_GC_ENUM_ENTRY(child)) {
            auto* const entry = ARV_GC_FEATURE_NODE(child);
            entries.push_back({entry, textOf(arv_gc_feature_node_get_name(entry))});
        }
    });
    return entries;
}

const Entry* findEntry(const Entries& entries, std::string_view name)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

const Entry* findEntry(const Entries& entries, std::int64_t number, GError** error)
{
    for (const Entry& entry : entries) {
        const bool isFound = entry.readNumber(error) == number;
        if (*error)
            return nullptr;
        if (isFound)
            return &entry;
    }
    return nullptr;
}

} // namespace genicam

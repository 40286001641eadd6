#include "Node.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace genicam {

namespace {

template <typename Visit> void forEachChild(ArvGcFeatureNode* node, Visit&& visit)
{
    if (!node)
        return;
    for (ArvDomNode* child = arv_dom_node_get_first_child(ARV_DOM_NODE(node)); child;
         child = arv_dom_node_get_next_sibling(child))
        visit(child);
}

template <typename Visit> void forEachProperty(ArvGcFeatureNode* node, Visit&& visit)
{
    forEachChild(node, [&](ArvDomNode* child) {
        if (ARV_IS_GC_PROPERTY_NODE(child))
            visit(arv_gc_property_node_get_node_type(ARV_GC_PROPERTY_NODE(child)),
                  ARV_GC_PROPERTY_NODE(child));
    });
}

/// Null when it holds its value itself.
ArvGcFeatureNode* valueOf(ArvGcFeatureNode* node)
{
    for (const auto& [type, linked] : linksOf(node)) {
        if (type == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE)
            return linked;
    }
    return nullptr;
}

/// @p missing where the description says nothing, which is an error of registers alone.
template <typename Node, typename Number>
Number readLimit(Number (*get)(Node*, GError**), Node* node, Number missing, GError** error)
{
    const Number limit = *error ? missing : get(node, error);
    if (!g_error_matches(*error, ARV_GC_ERROR, ARV_GC_ERROR_PROPERTY_NOT_DEFINED))
        return limit;
    g_clear_error(error);
    return missing;
}

template <typename Key>
ZebErrorType writeEntry(ArvGcFeatureNode* node, const Key& key, GError** error)
{
    const std::optional<Entry> entry = findEntry(entriesOf(node), key, error);
    if (!entry || !isThere(entry->node, error))
        return ZebErrorBadParameter;
    const std::int64_t number = entry->readNumber(error);
    if (!*error)
        arv_gc_enumeration_set_int_value(ARV_GC_ENUMERATION(node), number, error);
    return ZebErrorSuccess;
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
    constexpr double tolerance = 1e-6;
    const double steps = increment > 0.0 ? (value - minimum) / increment : 0.0;
    return std::isfinite(value)
        && (isAbsurd()
            || (value >= minimum && value <= maximum
                && std::abs(steps - std::round(steps)) < tolerance));
}

ZebFeatureDataType typeOf(ArvGcFeatureNode* node)
{
    // Enumerations are integers and typed registers are registers, too.
    static const std::pair<GType, ZebFeatureDataType> types[] = {
        {ARV_TYPE_GC_ENUMERATION, ZebFeatureDataEnum}, {ARV_TYPE_GC_BOOLEAN, ZebFeatureDataBool},
        {ARV_TYPE_GC_COMMAND, ZebFeatureDataCommand},  {ARV_TYPE_GC_FLOAT, ZebFeatureDataFloat},
        {ARV_TYPE_GC_INTEGER, ZebFeatureDataInt},      {ARV_TYPE_GC_STRING, ZebFeatureDataString},
        {ARV_TYPE_GC_REGISTER, ZebFeatureDataRaw}};
    for (const auto& [library, type] : types) {
        if (G_TYPE_CHECK_INSTANCE_TYPE(node, library))
            return type;
    }
    return ZebFeatureDataUnknown;
}

ZebFeatureVisibilityType visibilityOf(ArvGcFeatureNode* node)
{
    const int levels = arv_gc_feature_node_get_visibility(node); // from invisible to beginner
    return levels < 0
        ? ZebFeatureVisibilityBeginner
        : static_cast<ZebFeatureVisibilityType>(ZebFeatureVisibilityInvisible - levels);
}

Texts textsOf(ArvGcFeatureNode* node)
{
    static const char* const notations[] = {"Linear",    "Logarithmic", "Boolean",   "PureNumber",
                                            "HexNumber", "IPV4Address", "MACAddress"};
    Texts texts;
    texts[Name] = textOf(arv_gc_feature_node_get_name(node));
    texts[DisplayName] = textOf(arv_gc_feature_node_get_display_name(node));
    texts[ToolTip] = textOf(arv_gc_feature_node_get_tooltip(node));
    texts[Description] = textOf(arv_gc_feature_node_get_description(node));
    if (texts[DisplayName].empty())
        texts[DisplayName] = texts[Name];
    int notation = ARV_GC_REPRESENTATION_UNDEFINED;
    if (typeOf(node) == ZebFeatureDataFloat) {
        texts[Unit] = textOf(arv_gc_float_get_unit(ARV_GC_FLOAT(node)));
        notation = arv_gc_float_get_representation(ARV_GC_FLOAT(node));
    } else if (typeOf(node) == ZebFeatureDataInt) {
        texts[Unit] = textOf(arv_gc_integer_get_unit(ARV_GC_INTEGER(node)));
        notation = arv_gc_integer_get_representation(ARV_GC_INTEGER(node));
    }
    texts[Notation] = notation < 0 ? "" : notations[notation];
    return texts;
}

bool isThere(ArvGcFeatureNode* node, GError** error)
{
    return arv_gc_feature_node_is_implemented(node, error) && !*error
        && arv_gc_feature_node_is_available(node, error) && !*error;
}

// A register behind the node refuses as well as the node itself.
Access accessOf(ArvGcFeatureNode* node, GError** error)
{
    const ArvGcAccessMode mode = arv_gc_feature_node_get_actual_access_mode(node);
    Access access{mode != ARV_GC_ACCESS_MODE_WO && !ARV_IS_GC_COMMAND(node),
                  mode != ARV_GC_ACCESS_MODE_RO};
    for (ArvGcFeatureNode* one = node; one; one = valueOf(one)) {
        if (!isThere(one, error))
            return {};
        if (arv_gc_feature_node_is_locked(one, error) || *error)
            access.isWritable = false;
    }
    return access;
}

Value readValue(ArvGcFeatureNode* node, GError** error)
{
    Value value;
    const ZebFeatureDataType type = typeOf(node);
    if (type == ZebFeatureDataEnum)
        value = std::int64_t{arv_gc_enumeration_get_int_value(ARV_GC_ENUMERATION(node), error)};
    else if (type == ZebFeatureDataBool)
        value = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(node), error) != FALSE;
    else if (type == ZebFeatureDataFloat)
        value = arv_gc_float_get_value(ARV_GC_FLOAT(node), error);
    else if (type == ZebFeatureDataInt)
        value = std::int64_t{arv_gc_integer_get_value(ARV_GC_INTEGER(node), error)};
    else if (type == ZebFeatureDataString)
        value = textOf(arv_gc_string_get_value(ARV_GC_STRING(node), error));
    return *error ? Value() : value;
}

template <> Range<std::int64_t> readRange(ArvGcFeatureNode* node, GError** error)
{
    using Limits = std::numeric_limits<std::int64_t>;
    ArvGcInteger* const integer = ARV_GC_INTEGER(node);
    return {readLimit(arv_gc_integer_get_min, integer, Limits::min(), error),
            readLimit(arv_gc_integer_get_max, integer, Limits::max(), error),
            std::max(gint64{1}, readLimit(arv_gc_integer_get_inc, integer, gint64{1}, error))};
}

template <> Range<double> readRange(ArvGcFeatureNode* node, GError** error)
{
    using Limits = std::numeric_limits<double>;
    ArvGcFloat* const number = ARV_GC_FLOAT(node);
    const Range<double> range{readLimit(arv_gc_float_get_min, number, Limits::lowest(), error),
                              readLimit(arv_gc_float_get_max, number, Limits::max(), error),
                              readLimit(arv_gc_float_get_inc, number, 0.0, error)};
    // The library says the smallest of all numbers where the description says nothing.
    const bool isTold = range.increment > Limits::min() && std::isfinite(range.increment);
    return {range.minimum, range.maximum, isTold ? range.increment : 0.0};
}

bool isCommandDone(ArvGcFeatureNode* node, GError** error)
{
    std::int64_t executed = 0;
    ArvGcNode* flag = nullptr;
    forEachProperty(node, [&](ArvGcPropertyNodeType type, ArvGcPropertyNode* property) {
        if (type == ARV_GC_PROPERTY_NODE_TYPE_COMMAND_VALUE
            || type == ARV_GC_PROPERTY_NODE_TYPE_P_COMMAND_VALUE)
            executed = arv_gc_property_node_get_int64(property, error);
        else if (type == ARV_GC_PROPERTY_NODE_TYPE_P_VALUE)
            flag = arv_gc_property_node_get_linked_node(property);
    });
    // A register that cannot be read cannot tell.
    return *error || !ARV_IS_GC_INTEGER(flag)
        || !accessOf(ARV_GC_FEATURE_NODE(flag), error).isReadable
        || arv_gc_integer_get_value(ARV_GC_INTEGER(flag), error) != executed;
}

ZebErrorType write(ArvGcFeatureNode* node, std::int64_t value, GError** error)
{
    if (ARV_IS_GC_ENUMERATION(node))
        return writeEntry(node, value, error);
    if (typeOf(node) != ZebFeatureDataInt || !readRange<std::int64_t>(node, error).holds(value)
        || *error)
        return ZebErrorBadParameter;
    arv_gc_integer_set_value(ARV_GC_INTEGER(node), value, error);
    return ZebErrorSuccess;
}

ZebErrorType write(ArvGcFeatureNode* node, double value, GError** error)
{
    if (typeOf(node) != ZebFeatureDataFloat || !readRange<double>(node, error).holds(value)
        || *error)
        return ZebErrorBadParameter;
    arv_gc_float_set_value(ARV_GC_FLOAT(node), value, error);
    return ZebErrorSuccess;
}

ZebErrorType write(ArvGcFeatureNode* node, bool value, GError** error)
{
    if (typeOf(node) != ZebFeatureDataBool)
        return ZebErrorBadParameter;
    arv_gc_boolean_set_value(ARV_GC_BOOLEAN(node), value, error);
    return ZebErrorSuccess;
}

ZebErrorType write(ArvGcFeatureNode* node, const std::string& value, GError** error)
{
    if (ARV_IS_GC_ENUMERATION(node))
        return writeEntry(node, value, error);
    if (typeOf(node) != ZebFeatureDataString)
        return ZebErrorBadParameter;
    const auto longest = arv_gc_string_get_max_length(ARV_GC_STRING(node), error);
    if (*error || (longest > 0 && value.size() > static_cast<std::size_t>(longest)))
        return ZebErrorBadParameter;
    arv_gc_string_set_value(ARV_GC_STRING(node), value.c_str(), error);
    return ZebErrorSuccess;
}

ZebErrorType write(ArvGcFeatureNode* node, const std::vector<std::uint8_t>& value, GError** error)
{
    if (typeOf(node) != ZebFeatureDataRaw
        || arv_gc_register_get_length(ARV_GC_REGISTER(node), error) != value.size() || *error)
        return ZebErrorBadParameter;
    arv_gc_register_set(ARV_GC_REGISTER(node), value.data(), value.size(), error);
    return ZebErrorSuccess;
}

std::vector<Link> linksOf(ArvGcFeatureNode* node)
{
    std::vector<Link> links;
    forEachProperty(node, [&](ArvGcPropertyNodeType type, ArvGcPropertyNode* property) {
        if (type <= ARV_GC_PROPERTY_NODE_TYPE_P_UNKNONW)
            return;
        ArvGcNode* const linked = arv_gc_property_node_get_linked_node(property);
        if (ARV_IS_GC_FEATURE_NODE(linked))
            links.emplace_back(type, ARV_GC_FEATURE_NODE(linked));
    });
    return links;
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

std::optional<Entry> findEntry(const Entries& entries, const std::string& name, GError**)
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.name == name; });
    return found == entries.end() ? std::nullopt : std::optional(*found);
}

std::optional<Entry> findEntry(const Entries& entries, std::int64_t number, GError** error)
{
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
        return entry.readNumber(error) == number || *error;
    });
    return found == entries.end() || *error ? std::nullopt : std::optional(*found);
}

} // namespace genicam

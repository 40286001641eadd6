#include "NodeWriting.h"

namespace genicam {

namespace {

void set(ArvGcFeatureNode* node, std::int64_t value, GError** error)
{
    arv_gc_integer_set_value(ARV_GC_INTEGER(node), value, error);
}

void set(ArvGcFeatureNode* node, double value, GError** error)
{
    arv_gc_float_set_value(ARV_GC_FLOAT(node), value, error);
}

template <typename Number>
ZebErrorType writeNumber(ArvGcFeatureNode* node, Number value, GError** error)
{
    const auto range = readRange<Number>(node, error);
    if (*error || !range.holds(value))
        return ZebErrorBadParameter;
    set(node, value, error);
    return ZebErrorSuccess;
}

ZebErrorType writeEntry(ArvGcFeatureNode* node, const Value& value, GError** error)
{
    const Entries entries = entriesOf(node);
    const auto* const name = std::get_if<std::string>(&value);
    const auto* const number = std::get_if<std::int64_t>(&value);
    const Entry* const entry = name ? findEntry(entries, *name)
        : number                    ? findEntry(entries, *number, error)
                                    : nullptr;
    if (!entry || !entry->isAvailable(error))
        return ZebErrorBadParameter;
    const std::int64_t written = entry->readNumber(error);
    if (!*error)
        arv_gc_enumeration_set_int_value(ARV_GC_ENUMERATION(node), written, error);
    return ZebErrorSuccess;
}

ZebErrorType writeText(ArvGcFeatureNode* node, const std::string& value, GError** error)
{
    const auto longest = arv_gc_string_get_max_length(ARV_GC_STRING(node), error);
    if (*error || (longest > 0 && value.size() > static_cast<std::size_t>(longest)))
        return ZebErrorBadParameter;
    arv_gc_string_set_value(ARV_GC_STRING(node), value.c_str(), error);
    return ZebErrorSuccess;
}

} // namespace

ZebErrorType writeValue(ArvGcFeatureNode* node, const Value& value, GError** error)
{
    const ZebFeatureDataType type = typeOf(node);
    if (type == ZebFeatureDataEnum)
        return writeEntry(node, value, error);
    if (const auto* integer = std::get_if<std::int64_t>(&value);
        integer && type == ZebFeatureDataInt)
        return writeNumber(node, *integer, error);
    if (const auto* number = std::get_if<double>(&value); number && type == ZebFeatureDataFloat)
        return writeNumber(node, *number, error);
    if (const auto* text = std::get_if<std::string>(&value); text && type == ZebFeatureDataString)
        return writeText(node, *text, error);
    const auto* const isOn = std::get_if<bool>(&value);
    if (!isOn || type != ZebFeatureDataBool)
        return ZebErrorBadParameter;
    arv_gc_boolean_set_value(ARV_GC_BOOLEAN(node), *isOn, error);
    return ZebErrorSuccess;
}

ZebErrorType writeBytes(ArvGcFeatureNode* node, const std::uint8_t* data, std::uint32_t size,
                        GError** error)
{
    if (typeOf(node) != ZebFeatureDataRaw || !data)
        return ZebErrorBadParameter;
    const auto length = arv_gc_register_get_length(ARV_GC_REGISTER(node), error);
    if (*error || size != length)
        return ZebErrorBadParameter;
    arv_gc_register_set(ARV_GC_REGISTER(node), data, size, error);
    return ZebErrorSuccess;
}

} // namespace genicam

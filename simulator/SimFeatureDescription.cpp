// What a feature tells of itself: texts, kind, access, range and increment.

#include "SimFeatureCall.h"

#include "TwoCallAnswer.h"

#include <tuple>

namespace sim {

namespace {

ZebFeatureFlagsType flagsOf(const FeatureDescription& feature)
{
    std::uint32_t flags = ZebFeatureFlagsNone;
    if (feature.type != ZebFeatureDataCommand)
        flags |= ZebFeatureFlagsRead;
    if (!feature.isReadOnly)
        flags |= ZebFeatureFlagsWrite;
    if (feature.isVolatile)
        flags |= ZebFeatureFlagsVolatile;
    if (feature.reaction && feature.type != ZebFeatureDataCommand)
        flags |= ZebFeatureFlagsModifyWrite;
    return static_cast<ZebFeatureFlagsType>(flags);
}

} // namespace

ZebErrorType SimFeature::readText(Operation operation, TextField field, char* buffer,
                                  std::uint32_t& length)
{
    return perform(operation, [&](Call& call) {
        const std::string& text = call.store.description(m_index).*field;
        const bool isSubstituted = call.failure.kind == Failure::Kind::Substitute;
        if (isSubstituted || call.device.journal().records(operation))
            call.value = call.substituted(text);
        return answerText(isSubstituted ? call.value.toText() : text, call.failure, buffer, length);
    });
}

ZebErrorType SimFeature::GetName(char* buffer, std::uint32_t& length)
{
    return readText(Operation::GetName, &FeatureDescription::name, buffer, length);
}

ZebErrorType SimFeature::GetDisplayName(char* buffer, std::uint32_t& length)
{
    return readText(Operation::GetDisplayName, &FeatureDescription::displayName, buffer, length);
}

ZebErrorType SimFeature::GetCategory(char* buffer, std::uint32_t& length)
{
    return readText(Operation::GetCategory, &FeatureDescription::category, buffer, length);
}

ZebErrorType SimFeature::GetUnit(char* buffer, std::uint32_t& length)
{
    return readText(Operation::GetUnit, &FeatureDescription::unit, buffer, length);
}

ZebErrorType SimFeature::GetRepresentation(char* buffer, std::uint32_t& length)
{
    return readText(Operation::GetRepresentation, &FeatureDescription::representation, buffer,
                    length);
}

ZebErrorType SimFeature::GetToolTip(char* buffer, std::uint32_t& length)
{
    return readText(Operation::GetToolTip, &FeatureDescription::toolTip, buffer, length);
}

ZebErrorType SimFeature::GetDescription(char* buffer, std::uint32_t& length)
{
    return readText(Operation::GetDescription, &FeatureDescription::description, buffer, length);
}

ZebErrorType SimFeature::GetDataType(ZebFeatureDataType& dataType)
{
    return read(Operation::GetDataType, dataType,
                [&](const FeatureStore& store, ZebFeatureDataType& type) {
                    type = store.description(m_index).type;
                    return ZebErrorSuccess;
                });
}

ZebErrorType SimFeature::GetFlags(ZebFeatureFlagsType& flags)
{
    return read(Operation::GetFlags, flags,
                [&](const FeatureStore& store, ZebFeatureFlagsType& set) {
                    set = flagsOf(store.description(m_index));
                    return ZebErrorSuccess;
                });
}

ZebErrorType SimFeature::GetVisibility(ZebFeatureVisibilityType& visibility)
{
    return read(Operation::GetVisibility, visibility,
                [&](const FeatureStore& store, ZebFeatureVisibilityType& audience) {
                    audience = store.description(m_index).visibility;
                    return ZebErrorSuccess;
                });
}

ZebErrorType SimFeature::IsReadable(bool& readable)
{
    return read(Operation::IsReadable, readable, [&](const FeatureStore& store, bool& is) {
        is = store.isReadable(m_index);
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::IsWritable(bool& writable)
{
    return read(Operation::IsWritable, writable, [&](const FeatureStore& store, bool& is) {
        is = store.isWritable(m_index);
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::GetRange(std::int64_t& minimum, std::int64_t& maximum)
{
    return perform(Operation::GetRange, [&](Call& call) {
        if (call.store.description(m_index).type != ZebFeatureDataInt)
            return ZebErrorBadParameter;
        const IntegerRange range = call.store.integerRange(m_index);
        std::tie(minimum, maximum) = call.bounds(range.minimum, range.maximum);
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::GetRange(double& minimum, double& maximum)
{
    return perform(Operation::GetRange, [&](Call& call) {
        if (call.store.description(m_index).type != ZebFeatureDataFloat)
            return ZebErrorBadParameter;
        const FloatRange range = call.store.floatRange(m_index);
        std::tie(minimum, maximum) = call.bounds(range.minimum, range.maximum);
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::HasIncrement(bool& hasIncrement)
{
    return read(Operation::HasIncrement, hasIncrement, [&](const FeatureStore& store, bool& has) {
        const ZebFeatureDataType type = store.description(m_index).type;
        has = type == ZebFeatureDataInt
            || (type == ZebFeatureDataFloat && store.floatRange(m_index).increment > 0.0);
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::GetIncrement(std::int64_t& increment)
{
    return read(
        Operation::GetIncrement, increment, [&](const FeatureStore& store, std::int64_t& step) {
            step = store.integerRange(m_index).increment;
            return store.description(m_index).type == ZebFeatureDataInt ? ZebErrorSuccess
                                                                        : ZebErrorBadParameter;
        });
}

ZebErrorType SimFeature::GetIncrement(double& increment)
{
    return read(Operation::GetIncrement, increment, [&](const FeatureStore& store, double& step) {
        step = store.floatRange(m_index).increment;
        if (store.description(m_index).type != ZebFeatureDataFloat)
            return ZebErrorBadParameter;
        return step == 0.0 ? ZebErrorNotFound : ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::IsValueAvailable(std::int64_t value, bool& available)
{
    return read(Operation::IsValueAvailable, available, [&](const FeatureStore& store, bool& is) {
        const FeatureDescription& feature = store.description(m_index);
        const EnumItem* entry = feature.entry(value);
        is = entry && store.isAvailable(m_index, entry->name);
        return feature.type == ZebFeatureDataEnum ? ZebErrorSuccess : ZebErrorBadParameter;
    });
}

ZebErrorType SimFeature::IsValueAvailable(const char* value, bool& available)
{
    return read(Operation::IsValueAvailable, available, [&](const FeatureStore& store, bool& is) {
        if (!value || store.description(m_index).type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        is = store.isAvailable(m_index, value);
        return ZebErrorSuccess;
    });
}

} // namespace sim

#include "SimFeature.h"

#include "Device.h"
#include "TwoCallAnswer.h"

#include <stdexcept>
#include <thread>
#include <tuple>
#include <type_traits>
#include <utility>

namespace sim {

namespace {

template <typename Type> Type convertedTo(const Value& value)
{
    if constexpr (std::is_same_v<Type, bool>)
        return value.toBoolean();
    else if constexpr (std::is_same_v<Type, double>)
        return value.toNumber();
    else
        return static_cast<Type>(value.toInteger());
}

} // namespace

/// One call, while the device is locked.
struct SimFeature::Call
{
    Device& device;
    FeatureStore& store;
    const Failure& failure;
    ChangeSet changes;
    Value value; ///< for the journal

    Value substituted(const Value& original) const
    {
        return failure.kind == Failure::Kind::Substitute ? failure.substitute(original) : original;
    }

    template <typename Number>
    std::pair<Number, Number> bounds(const Number& minimum, const Number& maximum) const
    {
        const auto& [first, last]
            = failure.bounds.value_or(std::pair(substituted(minimum), substituted(maximum)));
        return {convertedTo<Number>(first), convertedTo<Number>(last)};
    }
};

namespace {

template <typename Type> Value valueOf(Type plain)
{
    if constexpr (std::is_enum_v<Type>)
        return static_cast<std::int64_t>(plain);
    else
        return plain;
}

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

SimFeature::SimFeature(std::weak_ptr<Device> device, std::size_t index, std::string name)
    : m_device(std::move(device))
    , m_index(index)
    , m_name(std::move(name))
{
}

// The frame of every call: @p body(call) runs with the device locked and gives the result.
template <typename Body> ZebErrorType SimFeature::perform(Operation operation, Body&& body)
{
    using Kind = Failure::Kind;
    const std::shared_ptr<Device> device = m_device.lock();
    if (!device)
        return ZebErrorBadHandle;

    const Failure failure
        = device->isLost() ? Failure() : device->failures().next(m_name, operation);
    if (failure.kind == Kind::Lose)
        device->lose(failure.code, failure.delay);
    const auto delay = device->isLost() ? device->lostDelay() : failure.delay;
    if (delay.count() > 0)
        std::this_thread::sleep_for(delay);

    const bool isLost = device->isLost();
    if (isLost || failure.kind == Kind::Refuse || failure.kind == Kind::Throw) {
        const ZebErrorType code = isLost ? device->lostCode() : failure.code;
        device->journal().add(operation, m_name, {}, code);
        if (!isLost && failure.kind == Kind::Throw)
            throw std::runtime_error("simulated failure of " + m_name);
        return code;
    }

    std::unique_lock lock(device->mutex());
    Call call{*device, device->store(), failure, {}, {}};
    ZebErrorType result = body(call);
    if (failure.kind == Kind::Report)
        result = failure.code;
    device->journal().add(operation, m_name, call.value, result);
    lock.unlock();
    if (!call.changes.features().empty())
        device->announce(call.changes);
    return result;
}

// A single plain output; @p read(store, value) answers the result.
template <typename Type, typename Read>
ZebErrorType SimFeature::read(Operation operation, Type& output, Read&& read)
{
    return perform(operation, [&](Call& call) {
        Type plain{};
        const ZebErrorType result = read(call.store, plain);
        if (result == ZebErrorSuccess) {
            call.value = call.substituted(valueOf(plain));
            output = convertedTo<Type>(call.value);
        }
        return result;
    });
}

template <typename Type> ZebErrorType SimFeature::readNumber(ZebFeatureDataType type, Type& output)
{
    return read(Operation::GetValue, output, [&](const FeatureStore& store, Type& plain) {
        const FeatureDescription& feature = store.description(m_index);
        const bool isEntryNumber
            = std::is_same_v<Type, std::int64_t> && feature.type == ZebFeatureDataEnum;
        if (feature.type != type && !isEntryNumber)
            return ZebErrorBadParameter;
        if (!store.isReadable(m_index))
            return ZebErrorInvalidAccess;
        const Value value = store.value(m_index);
        if (isEntryNumber) {
            const EnumItem* entry = feature.entry(value.toText());
            plain = convertedTo<Type>(entry ? entry->value : 0);
        } else {
            plain = convertedTo<Type>(value);
        }
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::GetValue(std::int64_t& value)
{
    return readNumber(ZebFeatureDataInt, value);
}

ZebErrorType SimFeature::GetValue(double& value)
{
    return readNumber(ZebFeatureDataFloat, value);
}

ZebErrorType SimFeature::GetValue(bool& value)
{
    return readNumber(ZebFeatureDataBool, value);
}

ZebErrorType SimFeature::GetValue(char* buffer, std::uint32_t& length)
{
    return perform(Operation::GetValue, [&](Call& call) {
        const ZebFeatureDataType type = call.store.description(m_index).type;
        if (type != ZebFeatureDataString && type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        if (!call.store.isReadable(m_index))
            return ZebErrorInvalidAccess;
        call.value = call.substituted(call.store.value(m_index));
        return answerText(call.value.toText(), call.failure, buffer, length);
    });
}

ZebErrorType SimFeature::GetValue(std::uint8_t* buffer, std::uint32_t bufferSize,
                                  std::uint32_t& sizeFilled)
{
    return perform(Operation::GetValue, [&](Call& call) {
        if (call.store.description(m_index).type != ZebFeatureDataRaw)
            return ZebErrorBadParameter;
        if (!call.store.isReadable(m_index))
            return ZebErrorInvalidAccess;
        call.value = call.substituted(call.store.value(m_index));
        sizeFilled = bufferSize;
        return answerList(call.value.toBytes(), call.failure, buffer, sizeFilled);
    });
}

// Lists

ZebErrorType SimFeature::GetValues(const char** values, std::uint32_t& count)
{
    return perform(Operation::GetValues, [&](Call& call) {
        m_listed = call.store.sharedDescription(m_index);
        if (m_listed->type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        std::vector<const char*> names;
        for (const EnumItem& entry : m_listed->entries)
            names.push_back(entry.name.c_str());
        return answerList(names, call.failure, values, count);
    });
}

ZebErrorType SimFeature::GetValues(std::int64_t* values, std::uint32_t& count)
{
    return perform(Operation::GetValues, [&](Call& call) {
        const FeatureDescription& feature = call.store.description(m_index);
        if (feature.type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        std::vector<std::int64_t> numbers;
        for (const EnumItem& entry : feature.entries)
            numbers.push_back(entry.value);
        return answerList(numbers, call.failure, values, count);
    });
}

ZebErrorType SimFeature::GetEntry(ZebCPP::EnumEntry& entry, const char* name)
{
    return perform(Operation::GetEntry, [&](Call& call) {
        if (!name || call.store.description(m_index).type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        if (!call.store.description(m_index).entry(name))
            return ZebErrorNotFound;
        entry = ZebCPP::EnumEntry();
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::GetEntries(ZebCPP::EnumEntry* entries, std::uint32_t& count)
{
    return perform(Operation::GetEntries, [&](Call& call) {
        const FeatureDescription& feature = call.store.description(m_index);
        if (feature.type != ZebFeatureDataEnum)
            return ZebErrorBadParameter;
        const std::vector<ZebCPP::EnumEntry> all(feature.entries.size());
        return answerList(all, call.failure, entries, count);
    });
}

ZebErrorType SimFeature::GetValidValueSet(std::int64_t* values, std::uint32_t bufferSize,
                                          std::uint32_t* setSize)
{
    return perform(Operation::GetValidValueSet, [&](Call& call) {
        const FeatureDescription& feature = call.store.description(m_index);
        if (feature.type != ZebFeatureDataInt || (!values && !setSize))
            return ZebErrorBadParameter;
        std::uint32_t count = bufferSize;
        const ZebErrorType result = answerList(feature.validValues, call.failure, values, count);
        if (setSize)
            *setSize = count;
        return result;
    });
}

ZebErrorType SimFeature::GetSelectedFeatures(ZebCPP::FeaturePtr* features, std::uint32_t& count)
{
    return perform(Operation::GetSelectedFeatures, [&](Call& call) {
        std::vector<ZebCPP::FeaturePtr> selected;
        for (const std::size_t index : call.store.selectedBy(m_index))
            selected.push_back(call.device.feature(index));
        return answerList(selected, call.failure, features, count);
    });
}

// Ranges, increments and availability

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

// Writing

ZebErrorType SimFeature::write(Operation operation, const Value& value)
{
    return perform(operation, [&](Call& call) {
        call.value = value;
        if (operation == Operation::RunCommand)
            return call.store.run(m_index, call.changes);
        if (call.failure.kind != Failure::Kind::Substitute)
            return call.store.write(m_index, value, call.device.rounding, call.changes);
        call.store.store(m_index, call.substituted(value), call.changes);
        return ZebErrorSuccess;
    });
}

ZebErrorType SimFeature::SetValue(std::int64_t value)
{
    return write(Operation::SetValue, value);
}

ZebErrorType SimFeature::SetValue(double value)
{
    return write(Operation::SetValue, value);
}

ZebErrorType SimFeature::SetValue(bool value)
{
    return write(Operation::SetValue, value);
}

ZebErrorType SimFeature::SetValue(const char* value)
{
    // A null text matches no type of feature and is refused as such.
    return write(Operation::SetValue, value ? Value(value) : Value());
}

ZebErrorType SimFeature::SetValue(const std::uint8_t* data, std::uint32_t size)
{
    return write(Operation::SetValue, data ? Value(Bytes(data, data + size)) : Value());
}

ZebErrorType SimFeature::RunCommand()
{
    return write(Operation::RunCommand, {});
}

ZebErrorType SimFeature::IsCommandDone(bool& done)
{
    return read(Operation::IsCommandDone, done, [&](const FeatureStore& store, bool& isDone) {
        isDone = store.isCommandDone(m_index);
        return store.description(m_index).type == ZebFeatureDataCommand ? ZebErrorSuccess
                                                                        : ZebErrorBadParameter;
    });
}

// Texts and kinds

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

// Observers

// The registry changes under the lock, in one order with the journal; what calls observers comes
// after it.
ZebErrorType SimFeature::RegisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
{
    std::shared_ptr<Notifier> notifier;
    const ZebErrorType result = perform(Operation::RegisterObserver, [&](Call& call) {
        const ZebErrorType added = call.device.notifier().registry().add(m_index, observer);
        if (added == ZebErrorSuccess)
            notifier = call.device.notifier().shared_from_this();
        return added;
    });
    if (notifier)
        notifier->observerAdded({m_index, shared_from_this()}, observer);
    return result;
}

ZebErrorType SimFeature::UnregisterObserver(const ZebCPP::IFeatureObserverPtr& observer)
{
    std::shared_ptr<Notifier> notifier;
    const ZebErrorType result = perform(Operation::UnregisterObserver, [&](Call& call) {
        const ZebErrorType removed = call.device.notifier().registry().remove(m_index, observer);
        if (removed == ZebErrorSuccess)
            notifier = call.device.notifier().shared_from_this();
        return removed;
    });
    if (notifier)
        notifier->observerRemoved({m_index, shared_from_this()}, observer);
    return result;
}

} // namespace sim

#include "SimFeatureCall.h"

#include "TwoCallAnswer.h"

#include <type_traits>
#include <utility>

namespace sim {

SimFeature::SimFeature(std::weak_ptr<Device> device, std::size_t index, std::string name)
    : m_device(std::move(device))
    , m_index(index)
    , m_name(std::move(name))
{
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
        call.isContinued = buffer != nullptr;
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
        call.isContinued = buffer != nullptr;
        if (call.store.description(m_index).type != ZebFeatureDataRaw)
            return ZebErrorBadParameter;
        if (!call.store.isReadable(m_index))
            return ZebErrorInvalidAccess;
        call.value = call.substituted(call.store.value(m_index));
        sizeFilled = bufferSize;
        return answerList(call.value.toBytes(), call.failure, buffer, sizeFilled);
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

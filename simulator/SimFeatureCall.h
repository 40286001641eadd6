#pragma once

// The frame of a feature's calls, for the sources of SimFeature.

#include "Device.h"
#include "SimFeature.h"

#include <mutex>
#include <stdexcept>
#include <thread>
#include <type_traits>
#include <utility>

namespace sim {

template <typename Type> Type convertedTo(const Value& value)
{
    if constexpr (std::is_same_v<Type, bool>)
        return value.toBoolean();
    else if constexpr (std::is_same_v<Type, double>)
        return value.toNumber();
    else
        return static_cast<Type>(value.toInteger());
}

template <typename Type> Value valueOf(Type plain)
{
    if constexpr (std::is_enum_v<Type>)
        return static_cast<std::int64_t>(plain);
    else
        return plain;
}

/// One call, while the device is locked.
struct SimFeature::Call
{
    Device& device;
    FeatureStore& store;
    const Failure& failure;
    ChangeSet changes;
    Value value; ///< for the journal
    bool isContinued = false;

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

// The frame of every call: @p body(call) runs with the device locked and gives the result.
template <typename Body> ZebErrorType SimFeature::perform(Operation operation, Body&& body)
{
    using Kind = Failure::Kind;
    const std::shared_ptr<Device> device = m_device.lock();
    if (!device)
        return ZebErrorBadHandle;

    const Failure failure
        = device->isLost(operation) ? Failure() : device->failures().next(m_name, operation);
    if (failure.kind == Kind::Lose)
        device->lose(failure.code, failure.delay, Operations::all());
    const auto delay = device->isLost(operation) ? device->lostDelay() : failure.delay;
    if (delay.count() > 0)
        std::this_thread::sleep_for(delay);

    const bool isLost = device->isLost(operation);
    if (isLost || failure.kind == Kind::Refuse || failure.kind == Kind::Throw) {
        const ZebErrorType code = isLost ? device->lostCode() : failure.code;
        device->journal().add(operation, m_name, {}, code);
        if (!isLost && failure.kind == Kind::Throw)
            throw std::runtime_error("simulated failure of " + m_name);
        return code;
    }

    std::unique_lock lock(device->mutex());
    Call call{*device, device->store(), failure, {}, {}, false};
    ZebErrorType result = body(call);
    if (failure.kind == Kind::Report)
        result = failure.code;
    device->journal().add(operation, m_name, call.value, result, call.isContinued);
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

} // namespace sim

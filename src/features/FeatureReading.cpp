#include "features/FeatureReading.h"

#include "features/SdkValues.h"

namespace FeatureReading {

namespace {

template <typename Number> struct TypedState
{
    Number value = Number{-1};
    Range<Number> range = {Number{-1}, Number{-1}};
    Number increment = Number{-1};
};

template <typename Number> NumberState toNumbers(const TypedState<Number>& state)
{
    return {static_cast<double>(state.value), static_cast<double>(state.range.minimum),
            static_cast<double>(state.range.maximum), static_cast<double>(state.increment)};
}

template <typename Number> TypedState<Number> readTypedLimits(ZebFeatureWrapper& feature)
{
    TypedState<Number> state;
    state.value = readValue<Number>(feature, Number{-1});
    state.range = readRange<Number>(feature);
    return state;
}

template <typename Number> TypedState<Number> readTypedState(ZebFeatureWrapper& feature)
{
    TypedState<Number> state = readTypedLimits<Number>(feature);
    state.increment = readIncrement<Number>(feature);
    return state;
}

} // namespace

ZebFeatureDataType readDataType(ZebFeatureWrapper& feature)
{
    auto type = Sdk::unknownType;
    return feature.GetDataType(type) == Sdk::success ? type : Sdk::unknownType;
}

bool readFlag(ZebFeatureWrapper& feature, ZebErrorType (ZebFeatureWrapper::*getter)(bool&))
{
    bool flag = false;
    return (feature.*getter)(flag) == Sdk::success && flag;
}

bool isWritable(ZebFeatureWrapper& feature)
{
    return readFlag(feature, &ZebFeatureWrapper::IsWritable);
}

QString readText(ZebFeatureWrapper& feature,
                 ZebErrorType (ZebFeatureWrapper::*getter)(std::string&))
{
    std::string text;
    return (feature.*getter)(text) == Sdk::success ? QString::fromStdString(text) : QString();
}

double readNumber(ZebFeatureWrapper& feature)
{
    switch (readDataType(feature)) {
    case Sdk::integerType:
        return static_cast<double>(readValue<int64_t>(feature, -1));
    case Sdk::floatType:
        return readValue<double>(feature, missingNumber);
    case Sdk::booleanType:
        return readValue<bool>(feature, false) ? 1.0 : 0.0;
    default:
        return missingNumber;
    }
}

double readIncrementAsNumber(ZebFeatureWrapper& feature)
{
    switch (readDataType(feature)) {
    case Sdk::integerType:
        return static_cast<double>(readIncrement<int64_t>(feature));
    case Sdk::floatType:
        return readIncrement<double>(feature);
    default:
        return missingNumber;
    }
}

NumberState readState(ZebFeatureWrapper& feature)
{
    switch (readDataType(feature)) {
    case Sdk::integerType:
        return toNumbers(readTypedState<int64_t>(feature));
    case Sdk::floatType:
        return toNumbers(readTypedState<double>(feature));
    default:
        return {};
    }
}

IntegerState readIntegerState(ZebFeatureWrapper& feature)
{
    if (readDataType(feature) != Sdk::integerType)
        return {};
    const auto state = readTypedState<int64_t>(feature);
    return {state.value, state.range.minimum, state.range.maximum, state.increment};
}

NumberState readFieldState(ZebFeatureWrapper& feature)
{
    switch (readDataType(feature)) {
    case Sdk::integerType: {
        auto state = readTypedState<int64_t>(feature);
        if (state.increment > 0)
            state.range.maximum = state.range.maximum / state.increment * state.increment;
        return toNumbers(state);
    }
    case Sdk::floatType: {
        auto state = readTypedState<double>(feature);
        if (!(state.increment > 0.0))
            state.increment = 0.01;
        return toNumbers(state);
    }
    default:
        return {};
    }
}

NumberState readLimits(ZebFeatureWrapper& feature)
{
    switch (readDataType(feature)) {
    case Sdk::integerType:
        return toNumbers(readTypedLimits<int64_t>(feature));
    case Sdk::floatType:
        return toNumbers(readTypedLimits<double>(feature));
    default:
        return {};
    }
}

} // namespace FeatureReading

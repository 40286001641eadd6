#pragma once

#include <ZebCPP/ZebCPP.h>

/// The SDK promises these numbers; its names for them differ from the stand-in's.
namespace Sdk {

constexpr auto success = static_cast<ZebErrorType>(0);
constexpr auto notFound = static_cast<ZebErrorType>(-3);
constexpr auto badHandle = static_cast<ZebErrorType>(-4);
constexpr auto badParameter = static_cast<ZebErrorType>(-7);
constexpr auto resources = static_cast<ZebErrorType>(-14);

constexpr auto unknownType = static_cast<ZebFeatureDataType>(0);
constexpr auto integerType = static_cast<ZebFeatureDataType>(1);
constexpr auto floatType = static_cast<ZebFeatureDataType>(2);
constexpr auto enumerationType = static_cast<ZebFeatureDataType>(3);
constexpr auto stringType = static_cast<ZebFeatureDataType>(4);
constexpr auto booleanType = static_cast<ZebFeatureDataType>(5);
constexpr auto commandType = static_cast<ZebFeatureDataType>(6);
constexpr auto rawType = static_cast<ZebFeatureDataType>(7);

constexpr auto unknownVisibility = static_cast<ZebFeatureVisibilityType>(0);

constexpr auto readFlag = static_cast<ZebFeatureFlagsType>(1);
constexpr std::uint32_t writeOrVolatileFlags = 0x1A; ///< write, volatile, modify-write

} // namespace Sdk

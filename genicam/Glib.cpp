#include "Glib.h"

#include "GenicamCamera.h"

#include <atomic>
#include <cstdio>
#include <map>
#include <mutex>

namespace genicam {

namespace {

std::atomic<int> criticals{0};

void onCritical(const char* domain, GLogLevelFlags, const char* message, void*)
{
    ++criticals;
    std::fprintf(stderr, "genicam: %s: %s\n", domain ? domain : "Aravis", message);
}

using Codes = std::map<int, ZebErrorType>;

const Codes& deviceCodes()
{
    static const Codes codes{
        {ARV_DEVICE_ERROR_TIMEOUT, ZebErrorTimeout},
        {ARV_DEVICE_ERROR_NOT_CONNECTED, ZebErrorTimeout},
        {ARV_DEVICE_ERROR_TRANSFER_ERROR, ZebErrorTimeout},
        {ARV_DEVICE_ERROR_FEATURE_NOT_FOUND, ZebErrorNotFound},
        {ARV_DEVICE_ERROR_NOT_FOUND, ZebErrorNotFound},
        {ARV_DEVICE_ERROR_GENICAM_NOT_FOUND, ZebErrorNotFound},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_NOT_IMPLEMENTED, ZebErrorNotFound},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS, ZebErrorNotFound},
        {ARV_DEVICE_ERROR_NOT_CONTROLLER, ZebErrorInvalidAccess},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT, ZebErrorInvalidAccess},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED, ZebErrorInvalidAccess},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY, ZebErrorResources},
        {ARV_DEVICE_ERROR_WRONG_FEATURE, ZebErrorBadParameter},
        {ARV_DEVICE_ERROR_INVALID_PARAMETER, ZebErrorBadParameter},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER, ZebErrorBadParameter},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT, ZebErrorBadParameter},
    };
    return codes;
}

const Codes& nodeCodes()
{
    static const Codes codes{
        {ARV_GC_ERROR_OUT_OF_RANGE, ZebErrorBadParameter},
        {ARV_GC_ERROR_INVALID_LENGTH, ZebErrorBadParameter},
        {ARV_GC_ERROR_INVALID_SYNTAX, ZebErrorBadParameter},
        {ARV_GC_ERROR_ENUM_ENTRY_NOT_FOUND, ZebErrorInvalidValue},
        {ARV_GC_ERROR_READ_ONLY, ZebErrorInvalidAccess},
        {ARV_GC_ERROR_NODE_NOT_FOUND, ZebErrorNotFound},
        {ARV_GC_ERROR_PROPERTY_NOT_DEFINED, ZebErrorNotFound},
        {ARV_GC_ERROR_PVALUE_NOT_DEFINED, ZebErrorNotFound},
    };
    return codes;
}

} // namespace

ZebErrorType codeOf(const GError& error)
{
    if (error.domain == G_IO_ERROR)
        return ZebErrorTimeout;
    const bool isKnown = error.domain == ARV_DEVICE_ERROR || error.domain == ARV_GC_ERROR;
    const Codes& codes = error.domain == ARV_DEVICE_ERROR ? deviceCodes() : nodeCodes();
    const auto found = codes.find(error.code);
    return isKnown && found != codes.end() ? found->second : ZebErrorOther;
}

bool isLoss(const GError& error)
{
    return codeOf(error) == ZebErrorTimeout;
}

void countCriticals()
{
    static std::once_flag once;
    std::call_once(once, [] {
        const auto levels = static_cast<GLogLevelFlags>(G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING);
        for (const char* domain : {"", "GLib", "GLib-GObject", "GLib-GIO"})
            g_log_set_handler(*domain ? domain : nullptr, levels, onCritical, nullptr);
    });
}

int criticalCount()
{
    return criticals;
}

} // namespace genicam

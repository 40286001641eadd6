#include "Glib.h"

#include "GenicamCamera.h"

#include <atomic>
#include <cstdio>
#include <mutex>

namespace genicam {

namespace {

std::atomic<int> criticals{0};

void onCritical(const char* domain, GLogLevelFlags, const char* message, void*)
{
    ++criticals;
    std::fprintf(stderr, "genicam: %s: %s\n", domain ? domain : "Aravis", message);
}

ZebErrorType codeOfDeviceError(int code)
{
    switch (code) {
    case ARV_DEVICE_ERROR_TIMEOUT:
    case ARV_DEVICE_ERROR_NOT_CONNECTED:
    case ARV_DEVICE_ERROR_TRANSFER_ERROR:
        return ZebErrorTimeout;
    case ARV_DEVICE_ERROR_FEATURE_NOT_FOUND:
    case ARV_DEVICE_ERROR_NOT_FOUND:
    case ARV_DEVICE_ERROR_GENICAM_NOT_FOUND:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_NOT_IMPLEMENTED:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS:
        return ZebErrorNotFound;
    case ARV_DEVICE_ERROR_NOT_CONTROLLER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED:
        return ZebErrorInvalidAccess;
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY:
        return ZebErrorResources;
    case ARV_DEVICE_ERROR_WRONG_FEATURE:
    case ARV_DEVICE_ERROR_INVALID_PARAMETER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_PARAMETER:
    case ARV_DEVICE_ERROR_PROTOCOL_ERROR_BAD_ALIGNMENT:
        return ZebErrorBadParameter;
    default:
        return ZebErrorOther;
    }
}

ZebErrorType codeOfNodeError(int code)
{
    switch (code) {
    case ARV_GC_ERROR_OUT_OF_RANGE:
    case ARV_GC_ERROR_INVALID_LENGTH:
    case ARV_GC_ERROR_INVALID_SYNTAX:
        return ZebErrorBadParameter;
    case ARV_GC_ERROR_ENUM_ENTRY_NOT_FOUND:
        return ZebErrorInvalidValue;
    case ARV_GC_ERROR_READ_ONLY:
        return ZebErrorInvalidAccess;
    case ARV_GC_ERROR_NODE_NOT_FOUND:
    case ARV_GC_ERROR_PROPERTY_NOT_DEFINED:
    case ARV_GC_ERROR_PVALUE_NOT_DEFINED:
        return ZebErrorNotFound;
    default:
        return ZebErrorOther;
    }
}

} // namespace

ZebErrorType codeOf(const GError& error)
{
    if (error.domain == ARV_DEVICE_ERROR)
        return codeOfDeviceError(error.code);
    if (error.domain == ARV_GC_ERROR)
        return codeOfNodeError(error.code);
    return isLoss(error) ? ZebErrorTimeout : ZebErrorOther;
}

bool isLoss(const GError& error)
{
    return error.domain == ARV_DEVICE_ERROR ? codeOfDeviceError(error.code) == ZebErrorTimeout
                                            : error.domain == G_IO_ERROR;
}

void countCriticals()
{
    static std::once_flag once;
    std::call_once(once, [] {
        const auto levels = static_cast<GLogLevelFlags>(G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING);
        for (const char* domain :
             {static_cast<const char*>(nullptr), "GLib", "GLib-GObject", "GLib-GIO"})
            g_log_set_handler(domain, levels, onCritical, nullptr);
    });
}

int criticalCount()
{
    return criticals;
}

} // namespace genicam

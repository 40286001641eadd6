#pragma once

#include <arv.h>

#include <ZebCPP/ZebCPP.h>

#include <memory>
#include <string>

namespace genicam {

struct Unref
{
    void operator()(void* object) const { g_object_unref(object); }
};

template <typename Type> using GObjectPtr = std::unique_ptr<Type, Unref>;

/// Empty for null.
inline std::string textOf(const char* source)
{
    return source ? source : "";
}

/// What an error of the library is in the SDK's terms.
ZebErrorType codeOf(const GError& error);

/// Whether it means that the camera cannot be reached, rather than that it refused.
bool isLoss(const GError& error);

/// From now on GLib's criticals and warnings are counted, and printed as the bridge's own.
void countCriticals();

} // namespace genicam

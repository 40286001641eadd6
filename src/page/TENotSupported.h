#pragma once

#include "page/TabExtensionException.h"

/// The camera is not one that the page supports; the viewer knows this as code 4.
class TENotSupported : public TabExtensionException
{
public:
    static constexpr qint32 notSupportedCode = 4;

    TENotSupported(const QString& function, const QString& message)
        : TabExtensionException(function, message, notSupportedCode)
    {
    }
};

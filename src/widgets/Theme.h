#pragma once

#include <QString>

/// The style sheet of coloured text on the region pages. Both are created at the first call.
inline const QString& regionTextStyle(bool darkMode)
{
    static const QString dark = QStringLiteral("color: rgba(56,111,251,255);");
    static const QString light = QStringLiteral("color: rgba(50,95,201,255);");
    return darkMode ? dark : light;
}

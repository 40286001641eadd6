#pragma once

#include <QString>

/// Style sheets for the coloured text of the region pages, each created once per process.
inline const QString& darkModeTextStyle()
{
    static const QString style = QStringLiteral("color: rgba(56,111,251,255);");
    return style;
}

inline const QString& lightModeTextStyle()
{
    static const QString style = QStringLiteral("color: rgba(50,95,201,255);");
    return style;
}

inline const QString& regionTextStyle(bool darkMode)
{
    return darkMode ? darkModeTextStyle() : lightModeTextStyle();
}

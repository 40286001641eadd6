#pragma once

#include <QString>

class QColor;
class QWidget;

/// The style sheet of coloured text on the region pages. Both are created at the first call.
inline const QString& regionTextStyle(bool darkMode)
{
    static const QString dark = QStringLiteral("color: rgba(56,111,251,255);");
    static const QString light = QStringLiteral("color: rgba(50,95,201,255);");
    return darkMode ? dark : light;
}

/// The name of the background, black or white, on which text can be read that follows no theme.
QString plateFor(const QColor& text);

/// Gives the enabled fields, boxes and buttons within @p page an outline that is seen.
void outlineControls(const QWidget* page);

/// Brings a page with a style sheet to the application's new palette.
void restyle(QWidget* page);

#pragma once

#include <QPoint>
#include <QString>

class QWidget;

// What a person does with a widget, done by program. Each answers why it could not be done, or an
// empty text.

/// Clicks into the middle of a widget; buttons are clicked wherever their text lies.
QString clickWidget(QWidget* widget);

/// Double-clicks at a position of the widget.
void doubleClickWidget(QWidget* widget, const QPoint& position);

/// Gives a field, choice, check box or slider a value and finishes the entry.
QString setWidgetValue(QWidget* widget, const QString& value);

/// Selects the tab of this text in any tab widget below @p root.
QString selectTab(QWidget* root, const QString& text);

#pragma once

#include <QList>
#include <QString>

class QWidget;

/// Which feature a form widget edits: its object name is a three-letter prefix and the feature's
/// exact name, as in "cmbPixelFormat". Empty for names with nothing behind the prefix.
QString boundFeatureName(const QString& objectName);

/// Those of @p widgets that are bound to the feature.
QList<QWidget*> widgetsBoundTo(const QString& featureName, const QList<QWidget*>& widgets);

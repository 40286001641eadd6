#pragma once

#include <QStringList>

class QCheckBox;
class QComboBox;

// What a camera holds, in a field that the user edits too. Nothing here makes a field emit.

void showChecked(QCheckBox* box, bool isChecked);

/// Selects nothing. With @p withToolTips each entry is its own tool tip.
void showEntries(QComboBox* comboBox, const QStringList& entries, bool withToolTips);

/// Selects by index. A text that is no entry selects nothing; false then.
bool showEntry(QComboBox* comboBox, const QString& entry);

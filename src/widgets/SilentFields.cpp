#include "widgets/SilentFields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>

void showChecked(QCheckBox* box, bool isChecked)
{
    const QSignalBlocker blocker(box);
    // Not setChecked(): in the middle of a click it would leave the box's published state behind,
    // and the next click would not be told.
    box->setCheckState(isChecked ? Qt::Checked : Qt::Unchecked);
}

bool showEntry(QComboBox* comboBox, const QString& entry)
{
    const QSignalBlocker blocker(comboBox);
    comboBox->setCurrentIndex(
        comboBox->findText(entry, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    return comboBox->currentIndex() >= 0;
}

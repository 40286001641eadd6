#include "widgets/SilentFields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>

void showChecked(QCheckBox* box, bool isChecked)
{
    const QSignalBlocker blocker(box);
    // Not setChecked(), which in the middle of a click would silence the next one.
    box->setCheckState(isChecked ? Qt::Checked : Qt::Unchecked);
}

void showEntries(QComboBox* comboBox, const QStringList& entries, bool withToolTips)
{
    const QSignalBlocker blocker(comboBox);
    comboBox->clear();
    comboBox->addItems(entries);
    for (int i = 0; i < entries.size() && withToolTips; ++i)
        comboBox->setItemData(i, entries.at(i), Qt::ToolTipRole);
    comboBox->setCurrentIndex(-1);
}

bool showEntry(QComboBox* comboBox, const QString& entry)
{
    const QSignalBlocker blocker(comboBox);
    comboBox->setCurrentIndex(
        comboBox->findText(entry, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    return comboBox->currentIndex() >= 0;
}

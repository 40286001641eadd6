#include "featuretable/FeatureValueItem.h"

#include "featuretable/record/ValueText.h"

#include <QSignalBlocker>
#include <QTableWidget>

QVariant FeatureValueItem::data(int role) const
{
    if (role != Qt::AccessibleTextRole)
        return QTableWidgetItem::data(role);
    const QVariant record = data(Qt::UserRole);
    const FeatureInfo* info = recordIn(record);
    return info ? accessibleCellText(*info, data(Qt::DisplayRole)) : data(Qt::DisplayRole);
}

void FeatureValueItem::setData(int role, const QVariant& value)
{
    // The base keeps a value that QVariant takes for equal, and floating-point numbers are compared
    // loosely there.
    const bool isValue = role == Qt::DisplayRole || role == Qt::EditRole;
    if (isValue && tableWidget() && data(role) == value) {
        const QSignalBlocker blocker(tableWidget()->model());
        QTableWidgetItem::setData(role, {});
    }
    QTableWidgetItem::setData(role, value);
}

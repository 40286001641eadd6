#pragma once

#include <QTableWidgetItem>

/// A value cell: display value and FeatureInfo are stored, the accessible text follows from them.
class FeatureValueItem : public QTableWidgetItem
{
public:
    using QTableWidgetItem::QTableWidgetItem;
    Q_DISABLE_COPY(FeatureValueItem)

    QVariant data(int role) const override;
    /// Every display value is told of, also one equal to the present: a value that was refused is
    /// tried again, and a command runs again.
    void setData(int role, const QVariant& value) override;
};

#pragma once

#include "featuretable/editors/DelegateWidget.h"

/// The button of a command. A click commits the cell's value as it is, each time.
class CommandEditor : public DelegateWidget
{
    Q_OBJECT

public:
    CommandEditor(const FeatureInfo& info, QWidget* parent);

protected:
    bool showValue(const QVariant& value) override;
    QVariant enteredValue() override { return m_value; }
    void confirm() override;

private:
    QVariant m_value;
};

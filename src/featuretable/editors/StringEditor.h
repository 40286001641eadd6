#pragma once

#include "featuretable/editors/DelegateWidget.h"

class QLineEdit;

class StringEditor : public DelegateWidget
{
    Q_OBJECT

public:
    StringEditor(const FeatureInfo& info, QWidget* parent);

protected:
    bool showValue(const QVariant& value) override;
    QVariant enteredValue() override;

private:
    QLineEdit* m_field;
};

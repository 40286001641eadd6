#pragma once

#include "featuretable/editors/DelegateWidget.h"

#include <QCheckBox>

class BooleanEditor : public DelegateWidget
{
    Q_OBJECT

public:
    BooleanEditor(const FeatureInfo& info, QWidget* parent);

protected:
    bool showValue(const QVariant& value) override;
    QVariant enteredValue() override { return m_box->isChecked(); }

private:
    QCheckBox* m_box;
};

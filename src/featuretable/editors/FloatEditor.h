#pragma once

#include "featuretable/editors/SliderEditor.h"

class QLineEdit;

/// A floating-point number: a field, and a slider for logarithmic features.
class FloatEditor : public SliderEditor
{
    Q_OBJECT

public:
    FloatEditor(const FeatureInfo& info, QWidget* parent);

protected:
    QVariant enteredValue() override;
    void showNumber(double value) override;

private:
    QLineEdit* m_field;
};

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
    bool showValue(const QVariant& value) override;
    QVariant enteredValue() override;
    bool isAcceptable() const override;
    void showNumber(double value) override;

private:
    void onTextEdited();

    QLineEdit* m_field;
};

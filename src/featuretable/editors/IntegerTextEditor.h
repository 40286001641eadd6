#pragma once

#include "featuretable/editors/DelegateWidget.h"
#include "featuretable/record/IntegerNotation.h"

class QLineEdit;

/// A whole number as text: an address, hexadecimal digits, or one too large for a spin box.
class IntegerTextEditor : public DelegateWidget
{
    Q_OBJECT

public:
    IntegerTextEditor(const FeatureInfo& info, const IntegerNotation& notation, QWidget* parent);

protected:
    bool showValue(const QVariant& value) override;
    QVariant enteredValue() override;
    bool isAcceptable() const override;

private:
    IntegerNotation m_notation;
    QLineEdit* m_field;
};

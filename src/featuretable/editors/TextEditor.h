#pragma once

#include "featuretable/editors/DelegateWidget.h"
#include "featuretable/record/ValueRange.h"

struct IntegerNotation;
class QLineEdit;

/// A string, or a whole number that has a notation of its own or is too large for a spin box.
class TextEditor : public DelegateWidget
{
    Q_OBJECT

public:
    /// @param notation null for strings
    TextEditor(const FeatureInfo& info, const IntegerNotation* notation, QWidget* parent);

protected:
    bool showValue(const QVariant& value) override;
    QVariant enteredValue() override;

private:
    const IntegerNotation* m_notation;
    const ValueRange<std::int64_t> m_range;
    QLineEdit* m_field;
};

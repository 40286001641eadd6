#include "featuretable/editors/FloatEditor.h"

#include "featuretable/record/ValueRange.h"
#include "featuretable/record/ValueText.h"

#include <QDoubleValidator>
#include <QLineEdit>

FloatEditor::FloatEditor(const FeatureInfo& info, QWidget* parent)
    : SliderEditor(info, parent)
    , m_field(new QLineEdit(this))
{
    const auto range = numberRange(info);
    auto* validator = new QDoubleValidator(m_field);
    validator->setBottom(range.minimum);
    validator->setTop(range.maximum);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(locale);
    m_field->setValidator(validator);
    m_field->setMinimumWidth(m_field->fontMetrics().horizontalAdvance(QStringLiteral("000000.0")));
    addControl(m_field, "editorField", 1);
    addUnit(info);
    addSlider(info);
    connect(m_field, &QLineEdit::textEdited, this, [this] {
        if (const QVariant number = enteredValue(); number.isValid())
            moveSlider(number.toDouble());
    });
}

QVariant FloatEditor::enteredValue()
{
    const auto number = textToNumber(m_field->text());
    return number && m_field->hasAcceptableInput() ? *number : QVariant();
}

void FloatEditor::showNumber(double value)
{
    m_field->setText(numberText(value));
    m_field->selectAll();
}

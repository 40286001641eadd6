#include "featuretable/editors/FloatEditor.h"

#include "featuretable/record/DoubleText.h"

#include <QDoubleValidator>
#include <QLineEdit>

namespace {

QDoubleValidator* createValidator(const FeatureInfo& info, QObject* parent)
{
    auto* validator = new QDoubleValidator(parent);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(locale);
    const auto minimum = toNumber(info.minimum);
    const auto maximum = toNumber(info.maximum);
    if (minimum && maximum) {
        const bool isRange = *minimum <= *maximum;
        const auto value = toNumber(info.value);
        validator->setBottom(isRange ? *minimum : value.value_or(*minimum));
        validator->setTop(isRange ? *maximum : value.value_or(*minimum));
    }
    return validator;
}

} // namespace

FloatEditor::FloatEditor(const FeatureInfo& info, QWidget* parent)
    : SliderEditor(info, parent)
    , m_field(new QLineEdit(this))
{
    m_field->setValidator(createValidator(info, m_field));
    m_field->setMinimumWidth(m_field->fontMetrics().horizontalAdvance(QStringLiteral("000000.0")));
    addControl(m_field, "editorField", 1);
    addUnit(info);
    addSlider(sliderRange(info));
    connect(m_field, &QLineEdit::textEdited, this, &FloatEditor::onTextEdited);
}

bool FloatEditor::showValue(const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber)
        return false;
    showNumber(number);
    m_field->selectAll();
    moveSlider(number);
    return true;
}

QVariant FloatEditor::enteredValue()
{
    const auto number = DoubleText::toNumber(m_field->text());
    return number && m_field->hasAcceptableInput() ? *number : QVariant();
}

bool FloatEditor::isAcceptable() const
{
    return m_field->hasAcceptableInput();
}

void FloatEditor::showNumber(double value)
{
    m_field->setText(DoubleText::fromNumber(value));
}

void FloatEditor::onTextEdited()
{
    if (const QVariant number = enteredValue(); number.isValid())
        moveSlider(number.toDouble());
}

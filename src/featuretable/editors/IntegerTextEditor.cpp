#include "featuretable/editors/IntegerTextEditor.h"

#include "featuretable/editors/IntegerValidator.h"
#include "featuretable/record/IntegerRange.h"

#include <QLineEdit>

IntegerTextEditor::IntegerTextEditor(const FeatureInfo& info, const IntegerNotation& notation,
                                     QWidget* parent)
    : DelegateWidget(info, parent)
    , m_notation(notation)
    , m_field(new QLineEdit(this))
{
    m_field->setValidator(new IntegerValidator(notation, integerRange(info), m_field));
    addControl(m_field, "editorField", 1);
    addUnit(info);
}

bool IntegerTextEditor::showValue(const QVariant& value)
{
    bool isInteger = false;
    const qint64 integer = value.toLongLong(&isInteger);
    if (!isInteger)
        return false;
    m_field->setText(m_notation.toText(integer));
    m_field->selectAll();
    return true;
}

QVariant IntegerTextEditor::enteredValue()
{
    if (!m_field->hasAcceptableInput())
        return {};
    const auto value = m_notation.toValue(m_field->text());
    return value ? QVariant::fromValue<qint64>(*value) : QVariant();
}

bool IntegerTextEditor::isAcceptable() const
{
    return m_field->hasAcceptableInput();
}

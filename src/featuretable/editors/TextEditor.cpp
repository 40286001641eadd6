#include "featuretable/editors/TextEditor.h"

#include "featuretable/editors/IntegerValidator.h"

#include <QLineEdit>

TextEditor::TextEditor(const FeatureInfo& info, const IntegerNotation* notation, QWidget* parent)
    : DelegateWidget(info, parent)
    , m_notation(notation)
    , m_field(new QLineEdit(this))
{
    addControl(m_field, "editorField", 1);
    if (!notation)
        return;
    m_field->setValidator(new IntegerValidator(*notation, integerRange(info), m_field));
    addUnit(info);
}

bool TextEditor::showValue(const QVariant& value)
{
    bool isShown = value.canConvert<QString>();
    const qint64 integer = m_notation ? value.toLongLong(&isShown) : 0;
    if (isShown)
        m_field->setText(m_notation ? m_notation->toText(integer) : value.toString());
    m_field->selectAll();
    return isShown;
}

QVariant TextEditor::enteredValue()
{
    if (!isAcceptable())
        return {};
    if (!m_notation)
        return m_field->text();
    const auto value = m_notation->toValue(m_field->text());
    return value ? QVariant::fromValue<qint64>(*value) : QVariant();
}

bool TextEditor::isAcceptable() const
{
    return m_field->hasAcceptableInput();
}

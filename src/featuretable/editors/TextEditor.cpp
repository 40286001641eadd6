#include "featuretable/editors/TextEditor.h"

#include "featuretable/record/ValueText.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

TextEditor::TextEditor(const FeatureInfo& info, const IntegerNotation* notation, QWidget* parent)
    : DelegateWidget(info, parent)
    , m_notation(notation)
    , m_range(integerRange(info))
    , m_field(new QLineEdit(this))
{
    addControl(m_field, "editorField", 1);
    if (!notation)
        return;
    const QRegularExpression pattern(QString::fromLatin1(notation->pattern));
    m_field->setValidator(new QRegularExpressionValidator(pattern, m_field));
    addUnit(info);
}

bool TextEditor::showValue(const QVariant& value)
{
    bool isShown = value.canConvert<QString>();
    const qint64 integer = m_notation ? value.toLongLong(&isShown) : 0;
    if (isShown)
        m_field->setText(m_notation ? integerText(integer, *m_notation) : value.toString());
    m_field->selectAll();
    return isShown;
}

QVariant TextEditor::enteredValue()
{
    if (!m_field->hasAcceptableInput())
        return {};
    if (!m_notation)
        return m_field->text();
    const auto value = textToInteger(m_field->text(), *m_notation);
    return value && m_range.contains(*value) ? QVariant::fromValue<qint64>(*value) : QVariant();
}

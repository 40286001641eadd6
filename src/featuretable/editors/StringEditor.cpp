#include "featuretable/editors/StringEditor.h"

#include <QLineEdit>

StringEditor::StringEditor(const FeatureInfo& info, QWidget* parent)
    : DelegateWidget(info, parent)
    , m_field(new QLineEdit(this))
{
    addControl(m_field, "editorField", 1);
}

bool StringEditor::showValue(const QVariant& value)
{
    m_field->setText(value.toString());
    m_field->selectAll();
    return value.canConvert<QString>();
}

QVariant StringEditor::enteredValue()
{
    return m_field->text();
}

#include "featuretable/editors/CommandEditor.h"

#include <QPushButton>

CommandEditor::CommandEditor(const FeatureInfo& info, QWidget* parent)
    : DelegateWidget(info, parent)
{
    auto* button = new QPushButton(tr("Execute"), this);
    button->setAutoDefault(false);
    addControl(button, "editorButton", 1);
    button->setAccessibleName(tr("Execute %1").arg(accessibleName()));
    connect(button, &QPushButton::clicked, this, &CommandEditor::confirm);
}

bool CommandEditor::showValue(const QVariant& value)
{
    m_value = value;
    return true;
}

void CommandEditor::confirm()
{
    touch();
    forgetKnownValue();
    if (end())
        emit newIntValueToSet(m_value.toLongLong());
}

#include "featuretable/editors/BooleanEditor.h"

BooleanEditor::BooleanEditor(const FeatureInfo& info, QWidget* parent)
    : DelegateWidget(info, parent)
    , m_box(new QCheckBox(this))
{
    addControl(m_box, "editorBox", 1);
    setContentsMargins(4, 0, 0, 0);
    // Styles derive the outline from the window's colour, which is lost on a dark cell.
    QPalette outlined = palette();
    outlined.setColor(QPalette::Window, outlined.color(QPalette::Disabled, QPalette::Text));
    m_box->setPalette(outlined);
    connect(m_box, &QCheckBox::clicked, this, [this](bool checked) {
        touch();
        if (end())
            emit newBoolValueToSet(checked);
    });
}

bool BooleanEditor::showValue(const QVariant& value)
{
    m_box->setChecked(value.toBool());
    return value.canConvert<bool>();
}

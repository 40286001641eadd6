#include "featuretable/editors/EnumerationEditor.h"

#include <QComboBox>
#include <QEvent>
#include <QScopedValueRollback>

EnumerationEditor::EnumerationEditor(const FeatureInfo& info, QWidget* parent)
    : DelegateWidget(info, parent)
    , m_box(new QComboBox(this))
{
    for (const FeatureValue& entry : info.enumEntries)
        m_box->addItem(toVariant(entry).toString());
    addControl(m_box, "editorEntries", 1);
    connect(m_box, qOverload<int>(&QComboBox::activated), this, &EnumerationEditor::onActivated);
}

bool EnumerationEditor::showValue(const QVariant& value)
{
    // An entry that is not listed leaves the box blank.
    m_box->setCurrentIndex(
        m_box->findText(value.toString(), Qt::MatchExactly | Qt::MatchCaseSensitive));
    return value.canConvert<QString>();
}

QVariant EnumerationEditor::enteredValue()
{
    return m_box->currentIndex() < 0 ? QVariant() : m_box->currentText();
}

// An entry passed by keys or wheel is told as one chosen from the list is.
bool EnumerationEditor::eventFilter(QObject* watched, QEvent* event)
{
    const bool steps = event->type() == QEvent::KeyPress || event->type() == QEvent::Wheel;
    const bool isHandled = DelegateWidget::eventFilter(watched, event);
    if (isHandled || !steps)
        return isHandled;
    const QScopedValueRollback stepping(m_isStepping, true);
    watched->event(event);
    return true;
}

void EnumerationEditor::onActivated()
{
    touch();
    if (!m_isStepping && end())
        emit newStringValueToSet(m_box->currentText());
}

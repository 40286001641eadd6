#include "featuretable/editors/EntryBox.h"

#include <QScopedValueRollback>

void EntryBox::keyPressEvent(QKeyEvent* event)
{
    const QScopedValueRollback stepping(m_stepping, true);
    QComboBox::keyPressEvent(event);
}

void EntryBox::wheelEvent(QWheelEvent* event)
{
    const QScopedValueRollback stepping(m_stepping, true);
    QComboBox::wheelEvent(event);
}

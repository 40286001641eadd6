#include "featuretable/CellEditing.h"

#include "featuretable/editors/DelegateWidget.h"

void CellEditing::opened(DelegateWidget* editor)
{
    m_announced.clear();
    m_editor = editor;
}

void CellEditing::finish()
{
    if (DelegateWidget* open = editor())
        open->finish();
}

bool CellEditing::covers(const QString& feature) const
{
    return (!m_announced.isEmpty() && m_announced == feature)
        || (isOpen() && m_editor->featureName() == feature);
}

QString CellEditing::feature() const
{
    return isOpen() && m_announced.isEmpty() ? m_editor->featureName() : m_announced;
}

DelegateWidget* CellEditing::editor() const
{
    return m_editor && !m_editor->hasEnded() ? m_editor.data() : nullptr;
}

#pragma once

#include <QPointer>
#include <QString>

class DelegateWidget;

/// Which value of a table is being edited: announced by a double click, open as long as there is an
/// editor that has not ended. The one truth for the table, its delegate and its owner.
class CellEditing
{
public:
    /// An editor is about to open. Where none may follow, closed() ends the announcement.
    void announce(const QString& feature) { m_announced = feature; }
    void opened(DelegateWidget* editor);
    /// The editor has closed or did not open. One that is still open stays so.
    void closed() { m_announced.clear(); }

    /// Commits what was entered, as far as it is acceptable, and closes the editor.
    void finish();

    bool isOpen() const { return editor() != nullptr; }
    bool covers(const QString& feature) const;
    /// Announced or open; empty when nothing is edited.
    QString feature() const;
    /// Null when none is open: one that has ended only awaits its deletion.
    DelegateWidget* editor() const;

private:
    QString m_announced;
    QPointer<DelegateWidget> m_editor;
};

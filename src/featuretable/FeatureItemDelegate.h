#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

class DelegateWidget;

/// Draws the value cells and edits them in place. Its parent is the table.
class FeatureItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit FeatureItemDelegate(QWidget* table);

    /// Null when none is open: one that has ended only awaits its deletion.
    DelegateWidget* editor() const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

public slots:
    void commitEditor();
    void commitAndCloseEditor();
    /// Closes an open editor without committing it.
    void onClose();

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void closeEnded(DelegateWidget* editor);

    mutable QPointer<DelegateWidget> m_editor;
    int m_editorHeight;
};

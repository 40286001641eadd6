#include "featuretable/FeatureItemDelegate.h"

#include "featuretable/CellEditing.h"
#include "featuretable/editors/DelegateWidget.h"
#include "featuretable/editors/DelegateWidgetFactory.h"
#include "featuretable/record/CellText.h"

#include <QComboBox>
#include <QDebug>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

namespace {

int heightOfEditors()
{
    return std::max({QComboBox().sizeHint().height(), QPushButton().sizeHint().height(),
                     QSpinBox().sizeHint().height()});
}

DelegateWidget* delegateWidget(QWidget* editor)
{
    auto* widget = qobject_cast<DelegateWidget*>(editor);
    if (!widget)
        qDebug() << "Unhandled class: " << editor->metaObject()->className();
    return widget;
}

// The view would not get the focus back by itself, for it is a control inside the editor that has
// it.
void returnFocus(const QWidget& editor)
{
    const QWidget* focused = editor.window()->focusWidget();
    if (editor.isAncestorOf(focused) && editor.parentWidget())
        editor.parentWidget()->setFocus();
}

} // namespace

FeatureItemDelegate::FeatureItemDelegate(QWidget* table, CellEditing& editing)
    : QStyledItemDelegate(table)
    , m_editing(editing)
    , m_editorHeight(heightOfEditors())
{
}

QWidget* FeatureItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                           const QModelIndex& index) const
{
    const QVariant data = index.data(Qt::UserRole);
    const auto info = data.value<FeatureInfo>();
    DelegateWidget* editor
        = data.canConvert<FeatureInfo>() ? createDelegateWidget(info, parent) : nullptr;
    if (!editor) {
        qDebug() << "Cannot create delegate widget for " << QString::fromStdString(info.name);
        return nullptr;
    }
    using Self = FeatureItemDelegate;
    connect(editor, &DelegateWidget::editingFinished, this, &Self::commitAndCloseEditor);
    connect(editor, &DelegateWidget::newBoolValueToSet, this, &Self::commitAndCloseEditor);
    connect(editor, &DelegateWidget::newStringValueToSet, this, &Self::commitAndCloseEditor);
    connect(editor, &DelegateWidget::newIntValueToSet, this, &Self::commitAndCloseEditor);
    connect(editor, &DelegateWidget::sliderValueChanged, this, &Self::commitEditor);
    connect(editor, &DelegateWidget::editingCancelled, this, &Self::onClose);
    m_editing.opened(editor);
    return editor;
}

void FeatureItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const auto info = index.data(Qt::UserRole).value<FeatureInfo>();
    if (DelegateWidget* widget = delegateWidget(editor))
        widget->fill(index.data(Qt::DisplayRole), toVariant(info.value));
}

void FeatureItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                       const QModelIndex& index) const
{
    DelegateWidget* widget = delegateWidget(editor);
    if (const QVariant value = widget ? widget->takeNewValue() : QVariant(); value.isValid())
        model->setData(index, value, Qt::DisplayRole);
}

void FeatureItemDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                               const QModelIndex&) const
{
    editor->setGeometry(option.rect);
}

QSize FeatureItemDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, m_editorHeight});
}

void FeatureItemDelegate::commitEditor()
{
    if (auto* editor = qobject_cast<DelegateWidget*>(sender()))
        emit commitData(editor);
    else
        qDebug() << "Cannot get sender widget.";
}

void FeatureItemDelegate::commitAndCloseEditor()
{
    const QPointer<DelegateWidget> editor = qobject_cast<DelegateWidget*>(sender());
    if (!editor) {
        qDebug() << "Cannot get sender widget.";
        return;
    }
    // Whoever hears of the new value may close the editor.
    const QPointer<FeatureItemDelegate> self(this);
    emit commitData(editor);
    if (self && editor)
        closeEnded(editor);
}

void FeatureItemDelegate::onClose()
{
    DelegateWidget* editor = m_editing.editor();
    if (!editor)
        return;
    editor->end();
    closeEnded(editor);
}

void FeatureItemDelegate::closeEnded(DelegateWidget* editor)
{
    // The change of focus is heard outside, too.
    const QPointer<FeatureItemDelegate> self(this);
    const QPointer<DelegateWidget> watched(editor);
    returnFocus(*editor);
    if (self && watched)
        emit closeEditor(editor, NoHint);
}

void FeatureItemDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QVariant data = index.data(Qt::UserRole);
    if (const FeatureInfo* info = recordIn(data))
        option->text = cellText(*info, index.data(Qt::DisplayRole));
}

bool FeatureItemDelegate::eventFilter(QObject* watched, QEvent* event)
{
    // The editors look after keys and focus themselves; the base would commit a second time.
    Q_UNUSED(watched)
    Q_UNUSED(event)
    return false; // clazy:exclude=base-class-event
}

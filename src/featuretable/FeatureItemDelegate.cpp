#include "featuretable/FeatureItemDelegate.h"

#include "featuretable/editors/BooleanEditor.h"
#include "featuretable/editors/CommandEditor.h"
#include "featuretable/editors/EnumerationEditor.h"
#include "featuretable/editors/FloatEditor.h"
#include "featuretable/editors/IntegerEditor.h"
#include "featuretable/editors/TextEditor.h"
#include "featuretable/record/ValueText.h"

#include <QComboBox>
#include <QDebug>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

namespace {

int heightOfEditors()
{
    return std::max({QComboBox().sizeHint().height(), QPushButton().sizeHint().height(),
                     QSpinBox().sizeHint().height()});
}

/// By the kind of value and its representation; null when it is not writable or has none.
DelegateWidget* createDelegateWidget(const FeatureInfo& info, QWidget* parent)
{
    if (!info.writable || info.isRaw)
        return nullptr;
    if (info.isCommand)
        return new CommandEditor(info, parent);
    if (!info.enumEntries.empty())
        return new EnumerationEditor(info, parent);
    if (std::holds_alternative<bool>(info.value))
        return new BooleanEditor(info, parent);
    if (std::holds_alternative<double>(info.value))
        return new FloatEditor(info, parent);
    if (std::holds_alternative<std::string>(info.value))
        return new TextEditor(info, nullptr, parent);
    if (const IntegerNotation* notation = notationFor(info))
        return new TextEditor(info, notation, parent);
    return createIntegerEditor(info, parent);
}

DelegateWidget* delegateWidget(QWidget* editor)
{
    auto* widget = qobject_cast<DelegateWidget*>(editor);
    if (!widget)
        qDebug() << "Unhandled class: " << editor->metaObject()->className();
    return widget;
}

} // namespace

FeatureItemDelegate::FeatureItemDelegate(QWidget* table)
    : QStyledItemDelegate(table)
    , m_editorHeight(heightOfEditors())
{
}

DelegateWidget* FeatureItemDelegate::editor() const
{
    return m_editor && !m_editor->hasEnded() ? m_editor.data() : nullptr;
}

QWidget* FeatureItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                           const QModelIndex& index) const
{
    const QVariant record = index.data(Qt::UserRole);
    const FeatureInfo* info = recordIn(record);
    m_editor = info ? createDelegateWidget(*info, parent) : nullptr;
    if (!m_editor) {
        qDebug() << "Cannot create delegate widget for "
                 << (info ? QString::fromStdString(info->name) : QString());
        return nullptr;
    }
    using Self = FeatureItemDelegate;
    connect(m_editor, &DelegateWidget::editingFinished, this, &Self::commitAndCloseEditor);
    connect(m_editor, &DelegateWidget::newBoolValueToSet, this, &Self::commitAndCloseEditor);
    connect(m_editor, &DelegateWidget::newStringValueToSet, this, &Self::commitAndCloseEditor);
    connect(m_editor, &DelegateWidget::newIntValueToSet, this, &Self::commitAndCloseEditor);
    connect(m_editor, &DelegateWidget::sliderValueChanged, this, &Self::commitEditor);
    connect(m_editor, &DelegateWidget::editingCancelled, this, &Self::onClose);
    return m_editor;
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
    // Whoever hears of the new value may close the editor.
    const QPointer<FeatureItemDelegate> self(this);
    const QPointer<DelegateWidget> editor = qobject_cast<DelegateWidget*>(sender());
    commitEditor();
    if (self && editor)
        closeEnded(editor);
}

void FeatureItemDelegate::onClose()
{
    DelegateWidget* open = editor();
    if (open && open->end())
        closeEnded(open);
}

void FeatureItemDelegate::closeEnded(DelegateWidget* editor)
{
    const QPointer<FeatureItemDelegate> self(this);
    const QPointer<DelegateWidget> watched(editor);
    // A control inside the editor has the focus, so that the view would not get it back by itself.
    if (editor->isAncestorOf(editor->window()->focusWidget()) && editor->parentWidget())
        editor->parentWidget()->setFocus();
    if (self && watched)
        emit closeEditor(editor, NoHint);
}

void FeatureItemDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QVariant record = index.data(Qt::UserRole);
    if (const FeatureInfo* info = recordIn(record))
        option->text = cellText(*info, index.data(Qt::DisplayRole));
}

bool FeatureItemDelegate::eventFilter(QObject* watched, QEvent* event)
{
    // The editors look after keys and focus themselves; the base would commit a second time.
    Q_UNUSED(watched)
    Q_UNUSED(event)
    return false; // clazy:exclude=base-class-event
}

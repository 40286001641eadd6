#include "featuretable/FeaturesTableWidget.h"

#include "features/FeatureManager.h"
#include "featuretable/FeatureItemDelegate.h"
#include "featuretable/FeatureNameDelegate.h"
#include "featuretable/MyTableWidget.h"
#include "featuretable/editors/DelegateWidget.h"
#include "featuretable/record/FeatureInfoReading.h"
#include "featuretable/record/ValueText.h"

#include <QColor>
#include <QDebug>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

namespace {

/// A value cell: display value and FeatureInfo are stored, the accessible text follows from them.
class FeatureValueItem : public QTableWidgetItem
{
    Q_DISABLE_COPY(FeatureValueItem)

public:
    FeatureValueItem() = default;

    QVariant data(int role) const override
    {
        if (role != Qt::AccessibleTextRole)
            return QTableWidgetItem::data(role);
        const QVariant record = data(Qt::UserRole);
        const FeatureInfo* info = recordIn(record);
        return info ? accessibleCellText(*info, data(Qt::DisplayRole)) : data(Qt::DisplayRole);
    }

    /// Every display value is told of, also an equal one: a refused value is tried, a command run
    /// again.
    void setData(int role, const QVariant& value) override
    {
        // The base keeps what QVariant takes for equal, and that compares numbers loosely.
        if (role == Qt::DisplayRole && tableWidget() && data(role) == value) {
            const QSignalBlocker blocker(tableWidget()->model());
            QTableWidgetItem::setData(role, {});
        }
        QTableWidgetItem::setData(role, value);
    }
};

/// Flags that are set count as changed, whatever they were.
void setEditable(QTableWidgetItem& item, bool editable)
{
    if (item.flags().testFlag(Qt::ItemIsEditable) != editable)
        item.setFlags(item.flags().setFlag(Qt::ItemIsEditable, editable));
}

} // namespace

FeaturesTableWidget::FeaturesTableWidget(const QStringList& features, FeatureManager* manager,
                                         QWidget* parent)
    : QWidget(parent)
    , m_manager(manager)
    , m_table(new MyTableWidget(this))
    , m_delegate(new FeatureItemDelegate(m_table))
{
    qRegisterMetaType<FeatureInfo>("FeatureInfo");
    // Else every record that is stored counts as changed.
    if (!QMetaType::hasRegisteredComparators<FeatureInfo>())
        QMetaType::registerEqualsComparator<FeatureInfo>();
    m_table->setObjectName(QStringLiteral("tblFeatures"));
    auto* column = new QVBoxLayout;
    column->setContentsMargins(2, 2, 2, 2);
    column->addWidget(m_table);
    setLayout(column);

    m_table->setItemDelegateForColumn(ValueColumn, m_delegate);

    using Self = FeaturesTableWidget;
    connect(this, &Self::closingWidget, m_delegate, &FeatureItemDelegate::onClose);
    connect(m_delegate, &FeatureItemDelegate::closeEditor, this, &Self::onClosingEditor);
    connect(m_table->model(), &QAbstractItemModel::dataChanged, this, &Self::onDataChanged);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &Self::onCellEdit);
    // The row becomes the flag: owners rely on the first row ending with false.
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &Self::cellEditorActive);
    // Nor does every double click open an editor.
    const auto endAnnouncement = [this] { m_announced.clear(); };
    connect(m_table, &QTableWidget::cellDoubleClicked, this, endAnnouncement, Qt::QueuedConnection);

    setUpTable(features.size());
    const auto reads = m_manager->link()->manyReads();
    for (int row = 0; row < features.size(); ++row)
        addRow(row, features.at(row), features);
    m_table->setItemDelegateForColumn(NameColumn, new FeatureNameDelegate(m_table));
    m_table->resizeColumnsToContents();
    m_table->resizeRowsToContents();
}

FeaturesTableWidget::~FeaturesTableWidget()
{
    // The owner may be half gone.
    const QSignalBlocker blocker(this);
    m_delegate->onClose();
}

bool FeaturesTableWidget::isEditing() const
{
    return m_delegate->editor() != nullptr;
}

QString FeaturesTableWidget::editedFeature() const
{
    return isEditing() && m_announced.isEmpty() ? m_delegate->editor()->featureName() : m_announced;
}

void FeaturesTableWidget::finishEditing()
{
    if (DelegateWidget* editor = m_delegate->editor())
        editor->finish();
}

void FeaturesTableWidget::setFilter(const QString& filter)
{
    // Not the table itself, which would paint its frame as well.
    const auto setUpdates = [this](bool enabled) {
        m_table->viewport()->setUpdatesEnabled(enabled);
        m_table->verticalHeader()->setUpdatesEnabled(enabled);
    };
    setUpdates(false);
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QVariant record = m_table->model()->index(row, ValueColumn).data(Qt::UserRole);
        const FeatureInfo* info = recordIn(record);
        const bool isHidden = info && !matchesFilter(*info, filter);
        if (m_table->isRowHidden(row) != isHidden)
            m_table->setRowHidden(row, isHidden);
    }
    setUpdates(true);
}

void FeaturesTableWidget::updateFeatures(const QStringList& features)
{
    CameraLink::Lasting reads;
    if (features.size() > 1) // a single one may be the read-back of an edit
        reads = m_manager->link()->manyReads();
    for (const QString& name : features) {
        if (const int row = rowOf(name); row >= 0)
            updateRow(row, name);
    }
}

/// An open editor is the user's, but its record follows what became of a value that it passed on.
void FeaturesTableWidget::updateRow(int row, const QString& name)
{
    m_pending.removeAll(name);
    const bool isEdited
        = m_announced == name || (isEditing() && m_delegate->editor()->featureName() == name);
    if (!isEdited) {
        refreshRow(row, readFeature(name));
        return;
    }
    setPending(name);
    if (name == m_saved)
        storeFeatureInfo(row, readFeature(name));
}

void FeaturesTableWidget::onDataChanged(const QModelIndex& topLeft, const QModelIndex&,
                                        const QVector<int>& roles)
{
    if (!isEdit(roles))
        return;
    const QModelIndex cell = topLeft.siblingAtColumn(ValueColumn);
    const QVariant record = cell.data(Qt::UserRole);
    const FeatureInfo* info = recordIn(record);
    if (!info) {
        qDebug() << "tblFeatures.data(" << topLeft.row()
                 << ") cannot convert to FeatureInfo:" << record;
        return;
    }
    const QPointer<FeaturesTableWidget> self(this);
    m_saved = QString::fromStdString(info->name);
    save(*info, cell.data(Qt::DisplayRole));
    if (!self)
        return;
    m_saved.clear();
    onClosingEditor();
}

bool FeaturesTableWidget::eventFilter(QObject* watched, QEvent* event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_F2)
        return QWidget::eventFilter(watched, event);
    const QModelIndex cell = m_table->currentIndex().siblingAtColumn(ValueColumn);
    if (cell.flags().testFlag(Qt::ItemIsEditable)) {
        onCellEdit(cell.row(), ValueColumn);
        m_table->edit(cell);
        m_announced.clear();
    }
    return true;
}

void FeaturesTableWidget::onCellEdit(int row, int column)
{
    const QVariant record = m_table->model()->index(row, column).data(Qt::UserRole);
    const FeatureInfo* info = recordIn(record);
    if (!info)
        return;
    m_announced = QString::fromStdString(info->name);
    emit cellEditorActive(true);
}

void FeaturesTableWidget::onClosingEditor()
{
    m_announced.clear();
    emit cellEditorActive(false);
}

FeatureInfo FeaturesTableWidget::readFeature(const QString& name)
{
    FeatureInfo info = featureInfo(rowOf(name));
    info.name = name.toStdString();
    if (!readFeatureInfo(*m_manager, info))
        setPending(name);
    return info;
}

void FeaturesTableWidget::save(const FeatureInfo& info, const QVariant& value)
{
    const QString name = QString::fromStdString(info.name);
    setPending(name);
    if (!m_manager->SetVariantValue(name, value)) {
        emit loggingMessage(
            ZebViewerLogMultiRegion,
            tr("Saving feature '%1' to value=%2 failed.").arg(name, value.toString()));
        return;
    }
    if (info.isCommand)
        return;
    // As the owner may have refreshed it.
    FeatureInfo saved = featureInfo(rowOf(name));
    FeatureValue taken = toFeatureValue(value);
    if (taken.index() != saved.value.index())
        return; // a number set as text, say, which the next refresh brings
    saved.value = std::move(taken);
    storeFeatureInfo(rowOf(name), saved);
}

FeatureInfo FeaturesTableWidget::featureInfo(int row) const
{
    const QTableWidgetItem* item = m_table->item(row, ValueColumn);
    return item ? item->data(Qt::UserRole).value<FeatureInfo>() : FeatureInfo();
}

void FeaturesTableWidget::storeFeatureInfo(int row, const FeatureInfo& info)
{
    const QScopedValueRollback refreshing(m_refreshing, true);
    if (QTableWidgetItem* item = m_table->item(row, ValueColumn))
        item->setData(Qt::UserRole, QVariant::fromValue(info));
}

void FeaturesTableWidget::showValue(const QString& name, const FeatureValue& value)
{
    const int row = rowOf(name);
    if (row < 0 || editedFeature() == name)
        return;
    FeatureInfo info = featureInfo(row);
    info.value = value;
    info.isKnown = true;
    refreshRow(row, info);
}

void FeaturesTableWidget::setUpTable(int rowCount)
{
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_table->setTabKeyNavigation(false); // Tab leaves the table
    m_table->installEventFilter(this);
    QHeaderView* header = m_table->horizontalHeader();
    header->setStretchLastSection(true);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    // Any one name tells the width of all.
    header->setResizeContentsPrecision(0);
    m_table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_table->setRowCount(rowCount);
    m_table->setColumnCount(ColumnCount);
    m_table->setHorizontalHeaderLabels({tr("Feature Name"), tr("Value")});
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
}

void FeaturesTableWidget::addRow(int row, const QString& name, const QStringList& features)
{
    auto* nameItem = new QTableWidgetItem;
    setEditable(*nameItem, false);
    nameItem->setToolTip(nameToolTip(name, features));
    m_table->setItem(row, NameColumn, nameItem);
    m_table->setItem(row, ValueColumn, new FeatureValueItem);
    if (!m_rows.contains(name))
        m_rows.insert(name, row);
    refreshRow(row, FeaturesTableWidget::readFeature(name));
}

void FeaturesTableWidget::refreshRow(int row, const FeatureInfo& info)
{
    QTableWidgetItem* nameItem = m_table->item(row, NameColumn);
    QTableWidgetItem* valueItem = m_table->item(row, ValueColumn);
    if (!nameItem || !valueItem)
        return;
    const QScopedValueRollback refreshing(m_refreshing, true);
    nameItem->setText(QString::fromStdString(info.displayName));
    nameItem->setData(Qt::UserRole, QString::fromStdString(info.name));
    nameItem->setForeground(QColor(info.writable ? "#006400" : "grey"));
    setEditable(*valueItem, info.writable);
    valueItem->setToolTip(QString::fromStdString(info.information));
    storeFeatureInfo(row, info);
    const QVariant value = info.isKnown ? toVariant(info.value) : QVariant();
    if (!isSameValue(valueItem->data(Qt::DisplayRole), value))
        valueItem->setData(Qt::DisplayRole, value);
}

QString FeaturesTableWidget::nameToolTip(const QString& name, const QStringList& features)
{
    if (!name.contains(QLatin1String("Selector")))
        return name;
    QString selected;
    for (const QString& feature : m_manager->GetSelectedFeatureNames(name)) {
        if (features.contains(feature))
            selected += QLatin1String("<br>") + feature;
    }
    if (selected.isEmpty())
        return name;
    return name + QStringLiteral("<p><b>%1</b>%2</p>").arg(tr("Selected features:"), selected);
}

void FeaturesTableWidget::setPending(const QString& name)
{
    if (!m_pending.contains(name))
        m_pending.append(name);
}

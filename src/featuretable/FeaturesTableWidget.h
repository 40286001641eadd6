#pragma once

#include "featuretable/record/FeatureInfo.h"

#include "host/TabExtensionInterface.h"

#include <QHash>
#include <QModelIndex>
#include <QStringList>
#include <QVector>
#include <QWidget>

class FeatureItemDelegate;
class FeatureManager;
class MyTableWidget;

/// A table of camera features: names in the first column, values in the second, which are edited in
/// place and written to the camera. The owner reports changed features through updateFeatures(),
/// and names pending rows again: what the camera did not tell stays as it is shown, a row whose
/// editor is open was passed over, and of a written value the camera may have made another.
///
/// Slots of its signals may close the editor, but must not delete the table, which is still in the
/// midst of the editor's commit: deleteLater() does.
class FeaturesTableWidget : public QWidget
{
    Q_OBJECT

public:
    /// @p manager must outlive the table. The rows keep the order of @p features.
    FeaturesTableWidget(const QStringList& features, FeatureManager* manager, QWidget* parent);
    ~FeaturesTableWidget() override;

    /// A double click on a cell that cannot be edited emits cellEditorActive(true) without an
    /// editor.
    bool isEditing() const;
    /// The feature whose value is edited, from the double click on; empty when there is none.
    QString editedFeature() const;
    /// Commits what an open editor holds, as far as it is acceptable, and closes it.
    void finishEditing();

    QStringList pendingFeatures() const { return m_pending; }

    /// Shows the rows whose name, display name or description contains @p filter, all when empty.
    void setFilter(const QString& filter);

signals:
    /// Emitted by the owner: an open editor closes without writing.
    void closingWidget();
    void loggingMessage(ZebViewerLogCategory category, const QString& message);
    /// True when an editor is about to open, false when it closed or its value was handled.
    void cellEditorActive(bool status);

public slots:
    void updateFeatures(const QStringList& features);
    virtual void onDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                               const QVector<int>& roles);
    void onCellEdit(int row, int column);
    void onClosingEditor();

protected:
    enum Column {
        NameColumn,
        ValueColumn,
        ColumnCount
    };

    /// Reads one feature. While the base is constructed its own version fills the rows.
    virtual FeatureInfo readFeature(const QString& name);

    virtual void save(const FeatureInfo& info, const QVariant& value);

    FeatureManager* manager() const { return m_manager; }

    /// Whether a dataChanged() with these roles comes from an editor: changes that the table makes
    /// itself do not, nor those of the record or without a display value.
    bool isEdit(const QVector<int>& roles) const
    {
        return !m_refreshing && !roles.contains(Qt::UserRole) && roles.contains(Qt::DisplayRole);
    }

    /// -1 when the feature has no row.
    int rowOf(const QString& name) const { return m_rows.value(name, -1); }
    /// The record of a row; an empty one when the cell holds none.
    FeatureInfo featureInfo(int row) const;
    /// As read by the owner. Of a row that is edited the value is left.
    void showValue(const QString& name, const FeatureValue& value);
    /// Replaces the record of a row. This is not an edit, and an open editor keeps what it shows.
    void storeFeatureInfo(int row, const FeatureInfo& info);

    /// Return, Enter and F2 open the editor of the current row, as a double click on its value
    /// does.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpTable(int rowCount);
    void addRow(int row, const QString& name, const QStringList& features);
    QString nameToolTip(const QString& name, const QStringList& features);
    void updateRow(int row, const QString& name);
    void refreshRow(int row, const FeatureInfo& info);
    void setPending(const QString& name);

    FeatureManager* m_manager;
    MyTableWidget* m_table;
    FeatureItemDelegate* m_delegate;
    QString m_announced; ///< by a double click, until an editor is open or none will be
    QHash<QString, int> m_rows;
    QStringList m_pending;
    QString m_saved; ///< the feature whose value is being passed on
    bool m_refreshing = false;
};

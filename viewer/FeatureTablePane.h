#pragma once

#include "features/FeatureManager.h"
#include "features/PluginFeatureObserver.h"
#include "host/TabExtensionInterface.h"

#include <QPointer>
#include <QSet>
#include <QWidget>

#include <memory>

class CameraSession;
class FeaturesTableWidget;
class QLineEdit;
class QTimer;
class QVBoxLayout;

/// All features of the open camera in a table, with a field that narrows it. Rows follow what the
/// camera notifies of, gathered for half a second; a row that was edited shows what the camera made
/// of it as soon as its editor is closed.
class FeatureTablePane : public QWidget
{
    Q_OBJECT

public:
    explicit FeatureTablePane(QWidget* parent = nullptr);
    ~FeatureTablePane() override;

    /// Null when no camera is open.
    void setSession(CameraSession* session);

    /// The table is made when it is seen first: reading every feature takes its time.
    void setSeen(bool isSeen);

    /// Opens the editor of a feature's value; false when the table does not show it.
    bool edit(const QString& feature);

signals:
    void logged(ZebViewerLogCategory category, const QString& message);

private:
    void openTable();
    void closeTable();
    void noteChanged(const QString& feature);
    void onCellEditorActive();
    void refresh();

    QPointer<CameraSession> m_session;
    QLineEdit* m_filter;
    QVBoxLayout* m_layout;
    QTimer* m_refreshTimer;
    FeatureManager::Wrappers m_features;
    std::unique_ptr<FeatureManager> m_manager;
    std::shared_ptr<PluginFeatureObserver> m_observer;
    std::unique_ptr<FeaturesTableWidget> m_table;
    bool m_isSeen = false;
    QSet<QString> m_changed; ///< rows to refresh
};

#pragma once

#include "host/TabExtensionInterface.h"

#include <QMainWindow>

#include <memory>

class CameraFinder;
class CameraListPane;
class CameraSession;
class CameraSource;
class DockLayout;
class FeatureTablePane;
class FeatureWritePane;
class LivePane;
class LogPane;
class PageHost;
class PluginHost;
class QDockWidget;
class QStackedWidget;
class QTabWidget;
class WorkNotice;

/// The viewer's window: panes around the pages of the open camera, of which there is one at most.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @p finder may be null: then there are the simulated cameras alone.
    MainWindow(const QString& modulePath, std::unique_ptr<CameraFinder> finder);
    ~MainWindow() override;

    /// The open one goes. A simulated camera is open at once, others later.
    void openCamera(const QString& id);
    void closeCamera();
    bool isOpening() const { return !m_opening.isEmpty(); }
    void searchCameras();
    void setPresentedAsSupported(bool is);

    /// Opens the editor of a feature in the table of camera features; false when it is not there.
    bool editFeature(const QString& feature);

    /// The open camera, or null.
    CameraSession* session() const { return m_session.get(); }

    /// The window as it is shown, with a dialog that lies on it.
    QPixmap screenshot();

    /// The layout is taken from where the last window left it, and this one leaves it there.
    void rememberLayout();

    /// Fusion in light or dark colours.
    static void setDark(bool dark);

signals:
    /// Opening has succeeded, or not.
    void openingEnded();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createPanes();
    void createMenus();
    void connectFinder();
    void startSession(const QString& id, const std::shared_ptr<CameraSource>& camera);
    void onOpened(const QString& id, const std::shared_ptr<CameraSource>& camera);
    void onFailed(const QString& id, const QString& reason);
    void onGone(bool isGone);

    std::unique_ptr<PluginHost> m_plugin;
    std::unique_ptr<CameraFinder> m_finder;
    QString m_opening;                  ///< the ID of a camera that is asked for
    std::unique_ptr<WorkNotice> m_work; ///< while it is opened
    QAction* m_presented = nullptr;
    std::unique_ptr<CameraSession> m_session;
    DockLayout* m_docks;
    bool m_isLaidOut = false; ///< by an earlier show, or as the last window was
    bool m_remembersLayout = false;
    QStackedWidget* m_centre;
    QTabWidget* m_pages;
    CameraListPane* m_cameras;
    LivePane* m_live;
    LogPane* m_log;
    FeatureWritePane* m_outside;
    FeatureTablePane* m_features;
    QDockWidget* m_featuresDock;
};

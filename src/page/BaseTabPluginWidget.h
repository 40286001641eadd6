#pragma once

#include "features/FeatureManager.h"
#include "features/PluginFeatureObserver.h"
#include "features/SdkValues.h"
#include "host/TabExtensionInterface.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

class ChangedNames;
class FeatureObservation;
class QComboBox;
class QMutex;
class QTimer;
class QTranslator;

/// Common base of all pages: opens the camera's features to the page, refuses cameras of other
/// vendors, and gathers change notifications, which it hands to the page once a second while the
/// page is visible, not suspended, and the camera answers. A page within another page of the same
/// camera shares its wrappers and its link.
///
/// The SDK may notify on any thread, also on the GUI thread in the middle of a write. Constructing
/// a page silences Qt's log output for the whole process.
class BaseTabPluginWidget : public QWidget
{
    Q_OBJECT

public:
    using FeatureList = TabExtensionInterface::FeatureList;

    /// Throws TENotSupported when isVendorSupported() denies the camera.
    BaseTabPluginWidget(const FeatureList& features, QWidget* parent);
    ~BaseTabPluginWidget() override;

    /// Both answer the SDK's code of the last feature handled, or Sdk::notFound for a camera
    /// without features. With @p markChanged the features handled count as changed.
    ZebErrorType registerObservers(bool markChanged);
    ZebErrorType unregisterObservers(bool markChanged);

    /// Fills @p comboBox with the entries of an enumeration and selects the current one, without a
    /// signal. False when the current value is no entry; then nothing is selected. With
    /// @p withItemData each item's tool tip is its entry's name.
    bool fillComboBox(const QString& featureName, QComboBox* comboBox, bool withItemData);

    /// Looks in the folder "qm/" of the working directory for the system's locale, then for its
    /// language alone. The caller owns the translator, which is empty when there is no file.
    static QTranslator* loadTranslator(const QString& baseName);

signals:
    void resetFPS();

public slots:
    void updateTimer();
    void OnFeatureChanged(const QString& name, const QString& value);

protected:
    /// From the features named in changedFeatures; called with the list locked, on a copy of it.
    virtual void refreshFeatures() = 0;
    virtual bool isVendorSupported(FeatureManager* manager);
    /// Of the page or of the application; this may come while a derived constructor runs.
    virtual void onPaletteChanged(QEvent* event) = 0;
    /// The camera does not answer any more. Tells the outer page; the outermost tells the viewer.
    virtual void reportLoss(const QString& message);

    /// The field takes the wheel only while it has the focus; without it the page scrolls.
    void guardAgainstWheel(QWidget* field);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

    /// Stops the timer and the observation until as many resumeUpdates() came; hiding the page
    /// ends every suspension. The names gathered so far are kept.
    void suspendUpdates();
    void resumeUpdates(bool markChanged);

    /// Does @p work, which reads many values to show them: a loss ends the reading.
    void visit(const std::function<void()>& work);
    /// What could not be read stays pending until the next tick.
    void readAgain(const QStringList& names);

    /// Whether the application's windows are dark. The page's own palette does not tell, for its
    /// style sheet cuts it off from the application's.
    static bool isDarkMode();

    /// Installs a translation in the application, once for each base name; true when it did so now.
    static bool installTranslator(const QString& baseName);

    std::unique_ptr<FeatureManager> featureManager;
    QStringList* changedFeatures = nullptr; ///< guarded by mutex
    QStringList observedFeatures;
    FeatureList cameraFeatures;
    QTimer* refreshTimer = nullptr;
    QMutex* mutex = nullptr;
    std::shared_ptr<PluginFeatureObserver> observer;

private:
    bool hasFeatures() const;
    bool readIsLost();
    void startUpdates(bool markChanged);
    void stopUpdates();

    QPointer<BaseTabPluginWidget> m_outerPage;
    std::shared_ptr<ChangedNames> m_changes;
    std::unique_ptr<FeatureObservation> m_observation;
    bool m_wasLost = false; ///< the camera did not answer when the page was to be refreshed
    int m_suspensions = 0;
};

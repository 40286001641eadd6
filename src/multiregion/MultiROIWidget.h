#pragma once

#include "multiregion/ModeWatch.h"
#include "multiregion/RegionCamera.h"
#include "multiregion/rules/ArrangementMode.h"
#include "page/BaseTabPluginWidget.h"

#include <QColor>
#include <QMutex>
#include <QPointer>

#include <memory>
#include <optional>
#include <vector>

class MultiRubberBandLabel;
class RegionLabelWidget;
class RegionTableWidget;
class RoundButton;
enum class TilePart;

namespace Ui {
class MultiROIWidget;
}

/// The page of the camera's multiple regions: switches them on and off in a way that the chosen
/// arrangement can satisfy, and keeps the sensor area, the tables and the camera in step. Only the
/// page writes to the camera.
///
/// A camera without multiple regions leaves the accessible name empty; such a page is to be
/// deleted.
class MultiROIWidget : public BaseTabPluginWidget
{
    Q_OBJECT

public:
    MultiROIWidget(const FeatureList& camera, QWidget* parent);
    ~MultiROIWidget() override;

    FeatureManager* manager() const { return featureManager.get(); }
    /// Knows what the regions' tables show only.
    FeatureManager* tableManager() const { return m_tableManager.get(); }

signals:
    void loggingMessage(ZebViewerLogCategory category, const QString& text);
    void multipleRegionsEnabled(bool enabled);
    void regionColorChanged(int regionNo, QColor color);
    void currentRegionChanged(int regionNo);
    void regionActivated(int regionNo, bool active);

public slots:
    /// @param regionRect in sensor pixels; the null rectangle shrinks the region to the camera's
    /// minimum and does not activate it
    void saveNewRegionGeometry(int regionNo, QRect regionRect);
    void onRegionButtonToggled();
    void onArrangementModeChanged(int index);
    void loadDefaultConfiguration();
    void selectRegionTab(int regionNo);
    void camIsStreaming(bool streaming);
    void setSubRegionSelector(int regionNo);
    void setBackgroundImage(std::shared_ptr<QPixmap> image);
    void updateDragArea();
    void onDragAreaResized();
    void onRegionColorChanged(int regionNo, QColor newColor);
    void setFeatureValue(int regionNo, int masterRegion, QString featureName, QVariant value);
    void onFeatureEditorActivated(bool status);

protected:
    void refreshFeatures() override;
    void onPaletteChanged(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// Work on many regions, which no refresh interrupts.
    class Work
    {
    public:
        explicit Work(MultiROIWidget* page);
        ~Work();
        Q_DISABLE_COPY_MOVE(Work)

    private:
        QPointer<MultiROIWidget> m_page;
    };

    static QColor regionDefaultColor() { return {0, 100, 255}; }

    struct RegionTab
    {
        QPointer<RoundButton> button;
        RegionTableWidget* table = nullptr;
        RegionLabelWidget* label = nullptr;
    };

    bool isSupported() const;
    void setTitle();
    void createLabel();
    void createRegions();
    void createRegion(int region, const QStringList& features, const RegionSizeLimits& limits);
    QStringList findTableFeatures();
    void connectForm();
    int regionCount() const { return static_cast<int>(m_tabs.size()); }
    bool isRegion(int region) const { return region >= 0 && region < regionCount(); }

    /// False, and logged, when the camera refuses: it still reads and writes another region then.
    bool select(int region);
    void log(const QString& text);
    void updateRegion(int region);
    void refreshAllRegions();
    bool followRegionMode(int region);

    bool isActive(int region) const;
    bool isButtonChecked(int region) const;
    bool isOnByCamera(int region);
    void setRegionActive(int region, bool active);
    void setButton(int region, bool checked);
    void updateButtons();
    void toggleRegion(int region, bool activate);
    std::optional<QRect> placement(int region, Qt::Orientation axis);
    bool place(int region, const QRect& first, const QRect& placed);
    QString mode() const;

    template <typename Ask> bool ask(Ask&& question);
    void activateRegion(int region);
    void deactivateTile(int region);
    void deactivatePart(int region, TilePart part);
    void deactivateCorner();
    void deactivate(const QVector<int>& regions);
    void deactivateSubsequent(int region);
    void completeTile(int region, const QRect& placed);
    void applyDefaults();

    bool isSuspended() const;
    void refreshPending();
    void refreshAll();
    void refreshNames(const QStringList& names);
    void refreshTable(const QStringList& names);
    void noteMode(const QString& name);
    void refreshSelectedRegion(bool withMode);
    void lookForSwitchedRegions();
    void followSelector();
    void refreshSwitch();
    void refreshArrangement();
    void testCompatibility();
    void onEnableToggled(bool enabled);
    void onRegionActivated(int regionNo, bool active);
    void refreshPendingSoon();

    std::unique_ptr<Ui::MultiROIWidget> m_ui;
    RegionCamera m_regions;
    std::unique_ptr<FeatureManager> m_tableManager;
    MultiRubberBandLabel* m_label = nullptr;
    std::vector<RegionTab> m_tabs;
    bool m_streaming = false;
    bool m_loading = false;
    std::optional<bool> m_enabled = false; ///< as it was last told
    std::shared_ptr<QMutex> m_loadLock = std::make_shared<QMutex>();
    QMutex m_selectorLock;

    int m_selectedByPage = -1; ///< what the page wrote to the selector last
    ModeWatch m_modeReports;
    QPointer<RoundButton> m_toggledButton; ///< whose signal is being handled
    QSize m_sensorSize;                    ///< as the label has it
    int m_suspensions = 0;                 ///< drags, boxes and loads under way
    bool m_fullRefreshPending = true;
    QStringList m_pendingNames; ///< changed while suspended
};

#pragma once

#include "multiregion/RegionCamera.h"
#include "multiregion/RegionQuestions.h"
#include "page/InnerPage.h"
#include "page/SenderShelter.h"

#include <QColor>

#include <memory>
#include <optional>

class MultiRubberBandLabel;
class RegionActivation;
class RegionSettings;
class RegionTabs;
class RegionWriter;

namespace Ui {
class MultiROIWidget;
}

/// The page of the camera's multiple regions. A camera without them leaves the accessible name
/// empty; such a page is to be deleted.
class MultiROIWidget : public InnerPage
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
    /// @param regionRect sensor pixels; the null one shrinks the region and does not activate it
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
    /// The regions that share the feature with @p regionNo follow, whatever @p masterRegion is.
    void setFeatureValue(int regionNo, int masterRegion, QString featureName, QVariant value);
    void onFeatureEditorActivated(bool status);

protected:
    bool isAtWork() const override;
    QStringList refresh(const Changes& changes) override;

private:
    static constexpr int mostRegions = 256;
    static QColor regionDefaultColor() { return {0, 100, 255}; }

    void createLabel();
    void createRegions();
    void connectForm();
    /// The camera has regions, and nobody has deleted the label.
    bool isReady() const { return m_ui && !m_label.isNull(); }
    bool isRegion(int region) const;

    std::shared_ptr<void> hold();
    std::optional<Answer> ask(Question question);
    void onEnableToggled(bool enabled);
    bool refreshSensor();
    bool refreshSwitch();
    bool refreshArrangement();
    bool followSelector();
    void refreshRegions(const QStringList& names);

    std::unique_ptr<Ui::MultiROIWidget> m_ui;
    RegionCamera m_regions;
    std::unique_ptr<FeatureManager> m_tableManager;
    QPointer<MultiRubberBandLabel> m_label;
    std::unique_ptr<RegionTabs> m_tabs;
    std::shared_ptr<void> m_toggling; ///< a call, until a question is asked
    std::unique_ptr<RegionWriter> m_writer;
    std::unique_ptr<RegionActivation> m_activation;
    std::unique_ptr<RegionSettings> m_settings;
    SenderShelter m_senders;
    int m_questions = 0;                   ///< to the user, under way
    std::optional<bool> m_enabled = false; ///< as it was last told
};

#pragma once

#include "page/InnerPage.h"
#include "regions/automatic/AutoRegionCamera.h"
#include "regions/automatic/ExposureLimits.h"

#include <QPixmap>

#include <memory>

class AutoRegionView;
class AutoRegionPicture;
class AutoRegionWriter;
class QComboBox;

namespace Ui {
class AutoROIWidget;
}

/// The page of the region that the camera's automatic functions evaluate, and of the limits of
/// automatic exposure. During a drag nothing is written.
///
/// A camera without such a region leaves the accessible name empty and the page without a form;
/// such a page is to be deleted.
class AutoROIWidget : public InnerPage
{
    Q_OBJECT

public:
    AutoROIWidget(const FeatureList& camera, QWidget* parent);
    ~AutoROIWidget() override;

public slots:
    void OnSpinTopValueChanged(double value) { writeNumber(RegionNumber::Top, value); }
    void OnSpinLeftValueChanged(double value) { writeNumber(RegionNumber::Left, value); }
    void OnSpinRightValueChanged(double value) { writeNumber(RegionNumber::Right, value); }
    void OnSpinBottomValueChanged(double value) { writeNumber(RegionNumber::Bottom, value); }
    void OnSpinWidthValueChanged(double value) { writeNumber(RegionNumber::Width, value); }
    void OnSpinHeightValueChanged(double value) { writeNumber(RegionNumber::Height, value); }
    void OnSpinEditingFinished();
    void OnEnableStateChanged(int state);
    void OnShowAreaStateChanged(int state);
    void OnGeometryChangeStarted();
    void OnSendGeometry(int top, int left, int width, int height);
    void OnUpdateGeometry(int top, int left, int width, int height);
    /// Lets the image and the size fields grow to what the camera allows now.
    void SetFullArea();
    void OnROIFull();
    void OnROIHalf() { applyCentredPreset(0.5); }
    void OnROIQuarter() { applyCentredPreset(0.25); }
    void OnResetTrustedUpdate() { m_isTrusted = false; }
    void OnSpinExpAutoMinChanged(double value) { writeLimit(ExposureLimits::Minimum, value); }
    void OnSpinExpAutoMaxChanged(double value) { writeLimit(ExposureLimits::Maximum, value); }
    void OnExpAutoTimebaseChanged(const QString& timebase);
    void OnBtnExpAutoMinCurrentClicked() { useTime(ExposureLimits::Minimum); }
    void OnBtnExpAutoMaxCurrentClicked() { useTime(ExposureLimits::Maximum); }
    void OnIntensityControllerRegionChanged(const QString& region);
    /// The controls follow one call late; the next refresh catches up.
    void camIsStreaming(bool streaming);
    void setBackgroundImage(std::shared_ptr<QPixmap> image);

protected:
    bool isAtWork() const override;
    QStringList refresh(const Changes& changes) override;
    void showEvent(QShowEvent* event) override;

private:
    void createParts();
    void connectForm();
    void connectLabel();
    void loadRegion();
    void enableControls(bool enabled);

    void writeNumber(RegionNumber number, double value);
    template <typename Preset> void applyPreset(const Preset& preset);
    void applyCentredPreset(double factor);
    void writeLimit(ExposureLimits::Which which, double value)
    {
        if (m_ui)
            readAgain(m_exposure->write(which, value));
    }
    void useTime(ExposureLimits::Which which)
    {
        if (m_ui)
            m_exposure->useTime(which);
    }
    void writeEntry(QComboBox* comboBox, const QString& name, const QString& entry);
    bool pumpEvents();
    void commitTyping();
    void onDragDropped();

    void refreshSwitches();
    QStringList showEntries();
    void checkRegion();
    void showRegion();

    std::unique_ptr<Ui::AutoROIWidget> m_ui; ///< null, as all below, when the page does not apply
    std::unique_ptr<AutoRegionCamera> m_camera;
    std::unique_ptr<AutoRegionView> m_view;
    std::unique_ptr<AutoRegionWriter> m_writer;
    std::unique_ptr<AutoRegionPicture> m_picture;
    std::unique_ptr<ExposureLimits> m_exposure;
    bool m_isStreaming = false;
    bool m_isTrusted = false;   ///< a drag was just written; what it passes through is no error
    bool m_isJustShown = false; ///< which counts every feature as changed
};

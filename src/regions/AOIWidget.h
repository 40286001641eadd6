#pragma once

#include "page/InnerPage.h"
#include "regions/image/RegionAxis.h"

#include <QPixmap>

#include <memory>

class RubberBandLabel;

namespace Ui {
class AOIWidget;
}

/// Number fields, presets, and the image region on the sensor area. A drag writes nothing.
///
/// A camera without an image size leaves the accessible name empty and the page without a form;
/// such a page is to be deleted.
class AOIWidget : public InnerPage
{
    Q_OBJECT

public:
    AOIWidget(const FeatureList& camera, QWidget* parent);
    ~AOIWidget() override;

public slots:
    void OnSpinTopValueChanged(double value) { write(m_vertical, &RegionAxis::writeOffset, value); }
    void OnSpinLeftValueChanged(double value)
    {
        write(m_horizontal, &RegionAxis::writeOffset, value);
    }
    void OnSpinWidthValueChanged(double value)
    {
        write(m_horizontal, &RegionAxis::writeSize, value);
    }
    void OnSpinHeightValueChanged(double value)
    {
        write(m_vertical, &RegionAxis::writeSize, value);
    }
    void OnSpinEditingFinished() { readAllSoon(); }
    void OnSendGeometry(int top, int left, int width, int height);
    void OnUpdateGeometry(int top, int left, int width, int height);
    void OnRubberLabelClicked();
    void OnROIFull();
    void OnROIHalf() { applyCentredPreset(0.5); }
    void OnROIQuarter() { applyCentredPreset(0.25); }
    void camIsStreaming(bool streaming);
    void onMultipleRegionsEnabled(bool multipleEnabled);
    void setBackgroundImage(std::shared_ptr<QPixmap> image);

protected:
    bool isAtWork() const override;
    QStringList refresh(const Changes& changes) override;

private:
    void createAxes();
    void createLabel();
    void connectForm();

    using Number = void (RegionAxis::*)(double);
    void write(const std::unique_ptr<RegionAxis>& axis, Number number, double value);
    void applyPreset(const Span<double>& horizontal, const Span<double>& vertical);
    void applyCentredPreset(double factor);
    void commitTyping();

    void enableRegion();
    void readMultipleRegions();
    void showBackground();
    void showRegion();
    void checkConsistency();
    static QString problemText(bool isTooWide, bool isTooHigh);

    std::unique_ptr<Ui::AOIWidget> m_ui; ///< null, as all below, when the page does not apply
    std::unique_ptr<RegionAxis> m_horizontal;
    std::unique_ptr<RegionAxis> m_vertical;
    RubberBandLabel* m_label = nullptr;
    std::shared_ptr<QPixmap> m_background;
};

#include "regions/AutoROIConnections.h"

#include "features/FeatureNames.h"
#include "regions/AutoROIWidget.h"
#include "regions/automatic/AutoRegionCamera.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AutoROIWidget.h"

namespace Name = FeatureNames;
using Page = AutoROIWidget;

namespace {

constexpr auto valueChanged = QOverload<double>::of(&QDoubleSpinBox::valueChanged);

void connectFields(Page& page, const Ui::AutoROIWidget& form, const AutoRegionCamera& camera)
{
    const auto connectField = [&page](const QDoubleSpinBox* field, void (Page::*slot)(double)) {
        QObject::connect(field, valueChanged, &page, slot);
        QObject::connect(field, &QDoubleSpinBox::editingFinished, &page,
                         &Page::OnSpinEditingFinished);
    };
    connectField(form.spinTop, &Page::OnSpinTopValueChanged);
    connectField(form.spinLeft, &Page::OnSpinLeftValueChanged);
    if (camera.has(Name::dspBottom)) {
        connectField(form.spinRight, &Page::OnSpinRightValueChanged);
        connectField(form.spinBottom, &Page::OnSpinBottomValueChanged);
    } else if (camera.usesSizes()) {
        connectField(form.spinWidth, &Page::OnSpinWidthValueChanged);
        connectField(form.spinHeight, &Page::OnSpinHeightValueChanged);
    }
}

} // namespace

void connectForm(Page& page, const Ui::AutoROIWidget& form, const AutoRegionCamera& camera)
{
    connectFields(page, form, camera);
    const auto connectTo = [&page](auto* sender, auto signal, auto slot) {
        QObject::connect(sender, signal, &page, slot);
    };
    if (camera.has(Name::aoiEnable))
        connectTo(form.cbEnable, &QCheckBox::stateChanged, &Page::OnEnableStateChanged);
    if (camera.has(Name::aoiShowArea))
        connectTo(form.cbShowArea, &QCheckBox::stateChanged, &Page::OnShowAreaStateChanged);
    connectTo(form.btnFull, &QPushButton::clicked, &Page::OnROIFull);
    connectTo(form.btnHalf, &QPushButton::clicked, &Page::OnROIHalf);
    connectTo(form.btnQuarter, &QPushButton::clicked, &Page::OnROIQuarter);
    connectTo(form.comboIntensityControllerRegion, &QComboBox::currentTextChanged,
              &Page::OnIntensityControllerRegionChanged);
    if (camera.has(Name::exposureAutoTimebase))
        connectTo(form.comboExpAutoTimeBase, &QComboBox::currentTextChanged,
                  &Page::OnExpAutoTimebaseChanged);
    connectTo(form.spinExpAutoMin, valueChanged, &Page::OnSpinExpAutoMinChanged);
    connectTo(form.spinExpAutoMax, valueChanged, &Page::OnSpinExpAutoMaxChanged);
    connectTo(form.btnExpAutoMinCurrent, &QPushButton::clicked,
              &Page::OnBtnExpAutoMinCurrentClicked);
    connectTo(form.btnExpAutoMaxCurrent, &QPushButton::clicked,
              &Page::OnBtnExpAutoMaxCurrentClicked);
}

void connectLabel(Page& page, const RubberBandLabel& label)
{
    QObject::connect(&label, &RubberBandLabel::SendGeometry, &page, &Page::OnSendGeometry);
    QObject::connect(&label, &RubberBandLabel::UpdateGeometry, &page, &Page::OnUpdateGeometry);
    QObject::connect(&label, &RubberBandLabel::GeometryChangeStarted, &page,
                     &Page::OnGeometryChangeStarted);
}

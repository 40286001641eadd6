#include "regions/AutoROIConnections.h"

#include "regions/AutoROIWidget.h"
#include "regions/automatic/AutoRegionCamera.h"
#include "ui_AutoROIWidget.h"

using Page = AutoROIWidget;

void connectForm(Page& page, const Ui::AutoROIWidget& form, const AutoRegionCamera& camera)
{
    constexpr auto valueChanged = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
    const auto connect = [&page](auto* sender, auto signal, auto slot) {
        QObject::connect(sender, signal, &page, slot);
    };
    const auto connectField = [&](const QDoubleSpinBox* field, void (Page::*slot)(double)) {
        connect(field, valueChanged, slot);
        connect(field, &QDoubleSpinBox::editingFinished, &Page::OnSpinEditingFinished);
    };
    connectField(form.spinTop, &Page::OnSpinTopValueChanged);
    connectField(form.spinLeft, &Page::OnSpinLeftValueChanged);
    if (camera.has(RegionNumber::Bottom)) {
        connectField(form.spinRight, &Page::OnSpinRightValueChanged);
        connectField(form.spinBottom, &Page::OnSpinBottomValueChanged);
    } else if (camera.usesSizes()) {
        connectField(form.spinWidth, &Page::OnSpinWidthValueChanged);
        connectField(form.spinHeight, &Page::OnSpinHeightValueChanged);
    }
    if (!form.cbEnable->isHidden())
        connect(form.cbEnable, &QCheckBox::stateChanged, &Page::OnEnableStateChanged);
    if (!form.cbShowArea->isHidden())
        connect(form.cbShowArea, &QCheckBox::stateChanged, &Page::OnShowAreaStateChanged);
    connect(form.btnFull, &QPushButton::clicked, &Page::OnROIFull);
    connect(form.btnHalf, &QPushButton::clicked, &Page::OnROIHalf);
    connect(form.btnQuarter, &QPushButton::clicked, &Page::OnROIQuarter);
    connect(form.comboIntensityControllerRegion, &QComboBox::currentTextChanged,
            &Page::OnIntensityControllerRegionChanged);
    if (!form.comboExpAutoTimeBase->isHidden())
        connect(form.comboExpAutoTimeBase, &QComboBox::currentTextChanged,
                &Page::OnExpAutoTimebaseChanged);
    connect(form.spinExpAutoMin, valueChanged, &Page::OnSpinExpAutoMinChanged);
    connect(form.spinExpAutoMax, valueChanged, &Page::OnSpinExpAutoMaxChanged);
    connect(form.btnExpAutoMinCurrent, &QPushButton::clicked, &Page::OnBtnExpAutoMinCurrentClicked);
    connect(form.btnExpAutoMaxCurrent, &QPushButton::clicked, &Page::OnBtnExpAutoMaxCurrentClicked);
}

#include "regions/automatic/AutoRegionForm.h"

#include "features/FeatureNames.h"
#include "regions/automatic/AutoRegionCamera.h"
#include "regions/automatic/AutoRegionView.h"
#include "ui_AutoROIWidget.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace Name = FeatureNames;

namespace {

void adaptTexts(const Ui::AutoROIWidget& form, const QStringList& names, bool hasEdges)
{
    const bool isAoi = names.contains(Name::aoiHeight);
    const QString aoi = AutoRegionText::tr("Autofunction AOI");
    const QString roi = names.contains(Name::autoModeHeight)
        ? AutoRegionText::tr("AutoMode ROI")
        : AutoRegionText::tr("Autofunction ROI");
    const QString region
        = hasEdges ? AutoRegionText::tr("DSPSubregion") : AutoRegionText::tr("AutoMode Region");
    form.gb_AutoROI->setTitle(isAoi ? aoi : roi);
    form.gb_Region->setTitle(isAoi ? aoi : region);
    form.labelTop->setText(hasEdges ? AutoRegionText::tr("Top:") : AutoRegionText::tr("OffsetY:"));
    form.labelLeft->setText(names.contains(Name::dspLeft) ? AutoRegionText::tr("Left:")
                                                          : AutoRegionText::tr("OffsetX:"));
}

/// Lines up the fields behind them.
void alignCaptions(std::initializer_list<QLabel*> captions)
{
    int width = 0;
    for (const QLabel* caption : captions)
        if (!caption->isHidden())
            width = std::max(width, caption->sizeHint().width());
    for (QLabel* caption : captions)
        caption->setFixedWidth(width);
}

void adaptRegionFields(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera)
{
    std::vector<QWidget*> hidden;
    if (camera.has(RegionNumber::Bottom))
        hidden = {form.spinWidth, form.labelWidth, form.spinHeight, form.labelHeight};
    else if (camera.usesSizes())
        hidden = {form.spinBottom, form.labelBottom, form.spinRight, form.labelRight};
    for (QWidget* widget : hidden)
        widget->hide();
    alignCaptions({form.labelLeft, form.labelRight, form.labelWidth});
    alignCaptions({form.labelTop, form.labelBottom, form.labelHeight});
    // A row whose fields are hidden would keep its column at the minimum width.
    for (QHBoxLayout* row :
         {form.horizontalLayout_2, form.horizontalLayout_3, form.horizontalLayout_4,
          form.horizontalLayout_5, form.horizontalLayout_6, form.horizontalLayout_7})
        row->addStretch();
}

void adaptSwitches(const Ui::AutoROIWidget& form, const QStringList& names)
{
    // Without a switch the region is always on.
    form.cbEnable->setVisible(names.contains(Name::aoiEnable));
    form.cbEnable->setChecked(!names.contains(Name::aoiEnable));
    form.cbShowArea->setVisible(names.contains(Name::aoiShowArea));
    const bool hasRegions = names.contains(Name::intensityControllerRegion);
    form.labelIntensityControllerRegion->setVisible(hasRegions);
    form.comboIntensityControllerRegion->setVisible(hasRegions);
    if (!hasRegions)
        form.horizontalSpacer->changeSize(0, 0);
}

void adaptExposure(const Ui::AutoROIWidget& form, const QStringList& names)
{
    const bool hasMin = names.contains(Name::exposureAutoMin);
    const bool hasMax = names.contains(Name::exposureAutoMax);
    const bool hasTimebase = names.contains(Name::exposureAutoTimebase);
    const bool hasTime
        = names.contains(Name::exposureTime) || names.contains(Name::exposureTimeAbs);
    form.labelExpAutoMin->setEnabled(hasMin);
    form.btnExpAutoMinCurrent->setEnabled(hasMin && hasTime);
    form.labelExpAutoMax->setEnabled(hasMax);
    form.btnExpAutoMaxCurrent->setEnabled(hasMax && hasTime);
    form.labelExpAutoTimeBase->setVisible(hasTimebase);
    form.comboExpAutoTimeBase->setVisible(hasTimebase);
    form.gb_ExposureAuto->setVisible(hasMin || hasMax || hasTimebase);
}

} // namespace

void adaptForm(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera)
{
    const QStringList names = camera.featureNames();
    adaptTexts(form, names, camera.usesEdges());
    adaptRegionFields(form, camera);
    adaptSwitches(form, names);
    adaptExposure(form, names);
}

void fitColumns(const Ui::AutoROIWidget& form)
{
    using Fields = std::initializer_list<const QDoubleSpinBox*>;
    const auto fit = [](QGridLayout* grid, int column, int captionWidth, Fields fields) {
        int width = 0;
        for (const QDoubleSpinBox* field : fields)
            if (!field->isHidden())
                width = std::max(width,
                                 std::clamp(field->sizeHint().width(), field->minimumWidth(),
                                            field->maximumWidth()));
        grid->setColumnMinimumWidth(column, captionWidth + width);
    };
    const int spacing = form.horizontalLayout_2->spacing();
    fit(form.gridLayout_2, 0, form.labelLeft->minimumWidth() + spacing,
        {form.spinLeft, form.spinRight, form.spinWidth});
    fit(form.gridLayout_2, 1, form.labelTop->minimumWidth() + spacing,
        {form.spinTop, form.spinBottom, form.spinHeight});
    fit(form.gridLayout, 1, 0, {form.spinExpAutoMin, form.spinExpAutoMax});
}

void enableRegion(const Ui::AutoROIWidget& form, AutoRegionView& view, bool enabled)
{
    if (!form.cbShowArea->isHidden())
        form.cbShowArea->setEnabled(enabled);
    view.setEnabled(enabled);
    for (QPushButton* button : {form.btnFull, form.btnHalf, form.btnQuarter})
        button->setEnabled(enabled && view.isRegionWritable());
    form.gb_AutoROI->setEnabled(enabled);
    form.gb_Region->setEnabled(enabled);
}

void showEdgeProblems(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera,
                      const AutoRegion& edges)
{
    if (!camera.usesEdges())
        return;
    const QString problems = edgeProblems(edges, camera.limits());
    form.labelInvalidSettings->setText(AutoRegionText::tr("Invalid settings: ") + problems);
    form.labelInvalidSettings->setVisible(!problems.isEmpty());
}

bool showSizeProblem(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera)
{
    const QString problem = sizeProblem(camera.region(), camera.origin(), camera.limits(),
                                        camera.has(Name::aoiHeight) ? "AOI" : "ROI");
    if (!problem.isEmpty())
        form.labelInvalidSettings->setText(problem);
    form.labelInvalidSettings->setVisible(!problem.isEmpty());
    return problem.isEmpty();
}

// What the page shows of the camera.

#include "regions/AutoROIWidget.h"

#include "features/FeatureNames.h"
#include "regions/automatic/AutoExposureEditor.h"
#include "regions/automatic/AutoRegionCamera.h"
#include "regions/automatic/AutoRegionForm.h"
#include "regions/automatic/AutoRegionPicture.h"
#include "regions/automatic/AutoRegionView.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AutoROIWidget.h"
#include "widgets/SilentFields.h"

#include <QScopedValueRollback>

#include <utility>

namespace Name = FeatureNames;

void AutoROIWidget::showEvent(QShowEvent* event)
{
    InnerPage::showEvent(event);
    m_isJustShown = true;
}

bool AutoROIWidget::isAtWork() const
{
    return m_picture && m_picture->label()->isDragging();
}

Changes AutoROIWidget::refresh(const Changes& changes)
{
    if (!m_ui)
        return {};
    const QScopedValueRollback<bool> refreshing(m_isRefreshing, true);
    const auto blockers = blockFields(*m_ui);
    m_ui->gb_AutoROI->setMaximumWidth(QWIDGETSIZE_MAX);

    const bool isSizeTold
        = changes.names.contains(Name::height) || changes.names.contains(Name::width);
    const bool isNewSize = isSizeTold && !std::exchange(m_isJustShown, false);
    const bool isResized = !changes.isEmpty() && updateLimits(isNewSize);
    const bool readsRegion = isResized || changes.any(Name::autoRegion);
    if (readsRegion || changes.any({Name::aoiEnable, Name::aoiShowArea}))
        refreshSwitches();
    if (readsRegion)
        refreshRegion();
    else if (!changes.isEmpty())
        showRegion();
    if (changes.any(Name::exposureLimits))
        refreshExposure();
    if (changes.any({Name::intensityControllerRegion}))
        fillComboBox(Name::intensityControllerRegion, m_ui->comboIntensityControllerRegion, false);
    enableControls(!m_isStreaming);
    return {};
}

// Whether they changed. Some cameras bound size and offset by each other, so the limits are taken
// only for a new image size; otherwise they would shrink with each move of the region.
bool AutoROIWidget::updateLimits(bool isSizeTold)
{
    const QSizeF imageSize = m_camera->imageSize();
    if (!isSizeTold && imageSize == m_imageSize)
        return false;
    m_imageSize = imageSize;
    const RegionLimits limits = m_camera->limits();
    if (limits.width == m_limits.width && limits.height == m_limits.height)
        return false;
    m_limits = limits;
    m_picture->setSize(m_limits);
    loadRegion();
    return true;
}

void AutoROIWidget::refreshSwitches()
{
    if (m_camera->has(Name::aoiEnable))
        showChecked(m_ui->cbEnable, m_camera->value(Name::aoiEnable) != 0.0);
    if (m_camera->has(Name::aoiShowArea))
        showChecked(m_ui->cbShowArea, m_camera->value(Name::aoiShowArea) != 0.0);
}

void AutoROIWidget::refreshRegion()
{
    m_editor->refresh(m_limits);
    fitColumns(*m_ui);
    showRegion();
    if (m_camera->usesEdges())
        showEdgeProblems(m_editor->edges());
    else if (m_camera->usesSizes())
        checkSizes();
}

void AutoROIWidget::refreshExposure()
{
    if (m_camera->has(Name::exposureAutoTimebase))
        fillComboBox(Name::exposureAutoTimebase, m_ui->comboExpAutoTimeBase, false);
    m_exposure->refresh();
    fitColumns(*m_ui);
}

void AutoROIWidget::showRegion()
{
    if (m_camera->usesEdges() || m_camera->has(Name::autoModeHeight) || m_ui->cbEnable->isChecked())
        m_picture->showRegion(m_limits);
}

void AutoROIWidget::showEdgeProblems(const DspEdges& edges)
{
    const QString problems = dspRegionProblems(edges, m_limits);
    m_ui->labelInvalidSettings->setText(tr("Invalid settings: ") + problems);
    m_ui->labelInvalidSettings->setVisible(!problems.isEmpty());
}

void AutoROIWidget::checkSizes()
{
    const QString problem = m_isTrusted ? QString() : m_camera->sizeProblem(m_limits);
    m_ui->labelInvalidSettings->setVisible(!problem.isEmpty());
    if (problem.isEmpty())
        return;
    m_ui->labelInvalidSettings->setText(problem);
    // The automatic functions must not work on what is no part of the image.
    if (isVisible())
        OnEnableStateChanged(0);
}

#include "regions/AutoROIWidget.h"

#include "features/FeatureNames.h"
#include "page/NumberField.h"
#include "regions/automatic/AutoExposureEditor.h"
#include "regions/automatic/AutoRegionCamera.h"
#include "regions/automatic/AutoRegionForm.h"
#include "regions/automatic/AutoRegionPicture.h"
#include "regions/automatic/AutoRegionView.h"
#include "regions/automatic/AutoRegionWriter.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AutoROIWidget.h"
#include "widgets/SilentFields.h"
#include "widgets/WheelGuard.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace Name = FeatureNames;

bool AutoROIWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (isUnfocusedFieldWheel(watched, event)) {
        event->ignore();
        return true;
    }
    return InnerPage::eventFilter(watched, event);
}

// Editing

void AutoROIWidget::OnSpinTopValueChanged(double value)
{
    writeNumber(RegionNumber::Top, value);
}

void AutoROIWidget::OnSpinLeftValueChanged(double value)
{
    writeNumber(RegionNumber::Left, value);
}

void AutoROIWidget::OnSpinRightValueChanged(double value)
{
    writeNumber(RegionNumber::Right, value);
}

void AutoROIWidget::OnSpinBottomValueChanged(double value)
{
    writeNumber(RegionNumber::Bottom, value);
}

void AutoROIWidget::OnSpinWidthValueChanged(double value)
{
    writeNumber(RegionNumber::Width, value);
}

void AutoROIWidget::OnSpinHeightValueChanged(double value)
{
    writeNumber(RegionNumber::Height, value);
}

void AutoROIWidget::writeNumber(RegionNumber number, double value)
{
    if (!m_ui || !m_camera->has(number))
        return;
    // The wanted edges are judged, for a strict camera keeps its former ones.
    showClamped(m_editor->field(number), value);
    const DspEdges wanted = m_editor->edges();
    m_writer->write(number, value);
    readAllNext();
    if (m_camera->usesEdges())
        showEdgeProblems(wanted);
    showRegion();
}

void AutoROIWidget::OnSpinEditingFinished()
{
    if (!m_ui)
        return;
    // The field has missed what the camera told while it was being typed in.
    if (!m_picture->label()->isDragging())
        m_editor->refresh(m_limits);
    readSoon({});
}

void AutoROIWidget::OnEnableStateChanged(int state)
{
    // A refresh must not be entered again by what waits in the queue.
    if (!m_ui || !m_camera->has(Name::aoiEnable) || (!m_isRefreshing && !pumpEvents()))
        return;
    showChecked(m_ui->cbEnable,
                featureManager->SetValue(Name::aoiEnable, state > 0 ? 1.0 : 0.0) > 0.0);
    // Reading everything would check the region again and take back what the user switched on.
    readSoon({});
}

void AutoROIWidget::OnShowAreaStateChanged(int state)
{
    const double shown = featureManager->SetValue(Name::aoiShowArea, state > 0 ? 1.0 : 0.0);
    if (m_ui)
        showChecked(m_ui->cbShowArea, shown > 0.0);
}

void AutoROIWidget::OnIntensityControllerRegionChanged(const QString& region)
{
    if (m_ui && m_camera->has(Name::intensityControllerRegion))
        showEntry(m_ui->comboIntensityControllerRegion,
                  featureManager->SetStringValue(Name::intensityControllerRegion, region));
}

// False when the page was deleted meanwhile.
bool AutoROIWidget::pumpEvents()
{
    const QPointer<AutoROIWidget> self(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return !self.isNull();
}

// Dragging

void AutoROIWidget::OnGeometryChangeStarted()
{
    if (m_ui)
        m_dragOrigin = m_camera->origin();
    suspendUpdates();
}

void AutoROIWidget::onGeometryChangeAborted()
{
    finishDrag();
    resumeUpdates(false);
    readAllSoon();
}

void AutoROIWidget::OnUpdateGeometry(int top, int left, int width, int height)
{
    if (!m_ui)
        return;
    const auto blockers = blockFields(*m_ui);
    // During a drag this comes with every move of the mouse.
    const QPointF origin = m_dragOrigin ? *m_dragOrigin : m_camera->origin();
    m_editor->show(fieldsForRegion({top, left, width, height}, origin));
}

void AutoROIWidget::OnSendGeometry(int top, int left, int width, int height)
{
    if (!m_ui)
        return;
    if (m_writer->writeDrawn({top, left, width, height}, m_limits))
        m_isTrusted = true;
    readAllNext();
    finishDrag();
    // Also while the region is off: the band lies where it was dropped.
    m_picture->showRegion(m_limits);
    if (m_camera->usesEdges()) {
        showEdgeProblems(m_editor->edges());
    } else if (m_camera->usesSizes()) {
        if (!pumpEvents())
            return;
        m_trustTimer->start();
    }
    resumeUpdates(false);
}

void AutoROIWidget::finishDrag()
{
    m_dragOrigin.reset();
    m_picture->showWaitingImage();
}

void AutoROIWidget::OnResetTrustedUpdate()
{
    m_isTrusted = false;
}

// Presets

void AutoROIWidget::SetFullArea()
{
    if (!m_ui)
        return;
    readAllNext();
    m_writer->setFullArea(m_limits);
}

void AutoROIWidget::OnROIFull()
{
    if (!m_ui)
        return;
    m_writer->presetFull(m_limits);
    finishPreset();
}

void AutoROIWidget::OnROIHalf()
{
    applyCentredPreset(0.5);
}

void AutoROIWidget::OnROIQuarter()
{
    applyCentredPreset(0.25);
}

void AutoROIWidget::applyCentredPreset(double factor)
{
    if (!m_ui)
        return;
    m_writer->presetCentred(m_limits, factor);
    finishPreset();
}

void AutoROIWidget::finishPreset()
{
    if (m_camera->usesEdges())
        showEdgeProblems(m_editor->edges());
    showRegion();
    readAllSoon();
}

// Exposure

void AutoROIWidget::OnSpinExpAutoMinChanged(double value)
{
    if (m_ui)
        m_exposure->writeMinimum(value);
}

void AutoROIWidget::OnSpinExpAutoMaxChanged(double value)
{
    if (m_ui)
        m_exposure->writeMaximum(value);
}

void AutoROIWidget::OnBtnExpAutoMinCurrentClicked()
{
    if (m_ui)
        m_exposure->useTimeAsMinimum();
}

void AutoROIWidget::OnBtnExpAutoMaxCurrentClicked()
{
    if (m_ui)
        m_exposure->useTimeAsMaximum();
}

void AutoROIWidget::OnExpAutoTimebaseChanged(const QString& timebase)
{
    if (!m_ui || !m_camera->has(Name::exposureAutoTimebase))
        return;
    showEntry(m_ui->comboExpAutoTimeBase,
              featureManager->SetStringValue(Name::exposureAutoTimebase, timebase));
    m_exposure->refresh();
}

// The viewer and the camera

void AutoROIWidget::camIsStreaming(bool streaming)
{
    if (!m_ui || !m_camera->has(Name::autoModeWidth))
        return;
    enableControls(!m_isStreaming);
    m_isStreaming = streaming;
}

void AutoROIWidget::enableControls(bool enabled)
{
    m_picture->label()->setEnabled(enabled);
    enableRegion(*m_ui, *m_camera, enabled);
}

void AutoROIWidget::setBackgroundImage(std::shared_ptr<QPixmap> image)
{
    if (m_ui)
        m_picture->setImage(std::move(image));
}

void AutoROIWidget::onPaletteChanged(QEvent*) { }

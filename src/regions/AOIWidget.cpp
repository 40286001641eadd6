#include "regions/AOIWidget.h"

#include "features/NumberConversion.h"
#include "regions/image/PresetGuard.h"
#include "regions/image/RegionAxis.h"
#include "regions/image/RegionPresets.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AOIWidget.h"
#include "widgets/WheelGuard.h"

#include <QSignalBlocker>

#include <utility>

bool AOIWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (isUnfocusedFieldWheel(watched, event)) {
        event->ignore();
        return true;
    }
    return InnerPage::eventFilter(watched, event);
}

void AOIWidget::OnSpinTopValueChanged(double value)
{
    writeNumber(m_vertical.get(), &RegionAxis::writeOffset, value);
}

void AOIWidget::OnSpinLeftValueChanged(double value)
{
    writeNumber(m_horizontal.get(), &RegionAxis::writeOffset, value);
}

void AOIWidget::OnSpinWidthValueChanged(double value)
{
    writeNumber(m_horizontal.get(), &RegionAxis::writeSize, value);
}

void AOIWidget::OnSpinHeightValueChanged(double value)
{
    writeNumber(m_vertical.get(), &RegionAxis::writeSize, value);
}

void AOIWidget::writeNumber(RegionAxis* axis, void (RegionAxis::*write)(double), double value)
{
    if (!m_ui)
        return;
    (axis->*write)(value);
    finishEdit();
}

void AOIWidget::OnSpinEditingFinished()
{
    readAllSoon();
}

void AOIWidget::OnSendGeometry(int top, int left, int width, int height)
{
    if (!m_ui)
        return;
    // The vertical correction moves by the size's step, the horizontal one by the offset's.
    const AxisPlan vertical
        = m_vertical->plan({double(top), double(height)}, m_ui->spinHeight->singleStep());
    const AxisPlan horizontal
        = m_horizontal->plan({double(left), double(width)}, m_ui->spinLeft->singleStep());
    {
        const QSignalBlocker blocker(m_label);
        m_vertical->write(vertical);
        m_horizontal->write(horizontal);
    }
    finishEdit();
}

void AOIWidget::OnUpdateGeometry(int top, int left, int width, int height)
{
    if (!m_ui)
        return;
    m_vertical->show({double(top), double(height)});
    m_horizontal->show({double(left), double(width)});
    checkConsistency();
}

void AOIWidget::OnRubberLabelClicked()
{
    if (!m_ui)
        return;
    m_vertical->widen();
    m_horizontal->widen();
    readAllNext();
}

void AOIWidget::OnROIFull()
{
    if (!m_ui)
        return;
    applyPreset({toInt(m_ui->spinTop->minimum()), toInt(m_ui->spinLeft->minimum()),
                 toInt(m_horizontal->maximum()), toInt(m_vertical->maximum())});
}

void AOIWidget::OnROIHalf()
{
    applyCentredPreset(0.5);
}

void AOIWidget::OnROIQuarter()
{
    applyCentredPreset(0.25);
}

void AOIWidget::applyCentredPreset(double factor)
{
    if (!m_ui)
        return;
    applyPreset(
        centredRegion({toInt(m_horizontal->maximum()), toInt(m_vertical->maximum())}, factor));
}

void AOIWidget::applyPreset(const SensorRegion& region)
{
    {
        const PresetGuard guard{m_ui->btnFull, m_ui->btnHalf, m_ui->btnQuarter};
        OnSendGeometry(region.top, region.left, region.width, region.height);
    }
    m_label->setEnabled(false);
    m_vertical->forgetMaximum();
    readAllSoon();
}

void AOIWidget::camIsStreaming(bool streaming)
{
    m_isStreaming = streaming;
    enableControls(!m_isStreaming);
}

void AOIWidget::enableControls(bool enabled)
{
    if (!m_ui)
        return;
    m_ui->gb_AOI->setEnabled(enabled);
    m_ui->gb_Region->setEnabled(enabled);
}

void AOIWidget::onMultipleRegionsEnabled(bool multipleEnabled)
{
    if (!m_ui)
        return;
    m_ui->scrollAreaWidgetContents->setDisabled(multipleEnabled);
    m_ui->gb_AOI->setVisible(!multipleEnabled);
    m_ui->lblWarning->setVisible(multipleEnabled);
    m_ui->lblWarning->setText(
        multipleEnabled ? tr("'%1' widget cannot be used if 'MultipleRegionsEnabled' is on.")
                              .arg(accessibleName())
                        : QString());
}

void AOIWidget::setBackgroundImage(std::shared_ptr<QPixmap> image)
{
    m_background = std::move(image);
    if (m_ui)
        showBackground();
}

void AOIWidget::showEvent(QShowEvent* event)
{
    if (m_ui)
        reserveProblemLines();
    InnerPage::showEvent(event);
}

void AOIWidget::finishEdit()
{
    readAllNext();
    showOnLabel();
    checkConsistency();
}

void AOIWidget::onPaletteChanged(QEvent*) { }

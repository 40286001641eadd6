// Following the camera: what changed is gathered while the user is at work and read afterwards.

#include "multiregion/MultiROIWidget.h"

#include "features/FeatureNames.h"
#include "multiregion/RegionTableWidget.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "ui_MultiROIWidget.h"

#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace Name = FeatureNames;

namespace {

bool intersects(const QStringList& a, const QStringList& b)
{
    return std::any_of(a.begin(), a.end(), [&b](const QString& name) { return b.contains(name); });
}

} // namespace

void MultiROIWidget::showEvent(QShowEvent* event)
{
    m_fullRefreshPending = true;
    BaseTabPluginWidget::showEvent(event);
}

void MultiROIWidget::refreshFeatures()
{
    if (!m_ui)
        return;
    m_pendingNames += *changedFeatures;
    m_pendingNames.removeDuplicates();
    refreshPending();
}

bool MultiROIWidget::isSuspended() const
{
    const int current = m_ui->tabRegions->currentIndex();
    const bool isEditing
        = isRegion(current) && m_tabs[static_cast<std::size_t>(current)].table->isEditing();
    return m_suspensions > 0 || m_loading || m_label->isDragging() || isEditing;
}

/// Once the events under way are done with.
void MultiROIWidget::refreshPendingSoon()
{
    QTimer::singleShot(0, this, [this] {
        // A page that nobody sees leaves the camera alone; shown again, it reads everything.
        if (isVisible())
            refreshPending();
        else
            m_fullRefreshPending = true;
    });
}

void MultiROIWidget::refreshPending()
{
    if (isSuspended())
        return;
    const QStringList names = std::exchange(m_pendingNames, {});
    if (m_fullRefreshPending && isVisible())
        refreshAll();
    else
        refreshNames(names);
}

void MultiROIWidget::refreshAll()
{
    m_fullRefreshPending = false;
    m_modeReports.forget();
    refreshSwitch();
    refreshArrangement();
    testCompatibility();
    followSelector();
    updateDragArea();
    refreshAllRegions();
}

void MultiROIWidget::refreshNames(const QStringList& names)
{
    if (intersects(names, Name::multipleRegionSwitches))
        refreshSwitch();
    if (names.contains(Name::multipleRegionArrangement))
        refreshArrangement();
    if (intersects(names, Name::pictureGeometry))
        testCompatibility();
    if (names.contains(Name::subRegionSelector))
        followSelector();
    refreshTable(names);
    // The camera may notify of what did not change, also because all regions are read.
    if (intersects(names, Name::sizeLimits) && m_regions.sensorSize() != m_sensorSize) {
        updateDragArea();
        refreshAllRegions();
        return;
    }
    if (intersects(names, Name::subRegion))
        refreshSelectedRegion(names.contains(Name::subRegionMode));
    if (m_modeReports.isLookDue(isVisible()))
        lookForSwitchedRegions();
}

/// What the table shows beside its region's own features.
void MultiROIWidget::refreshTable(const QStringList& names)
{
    QStringList common
        = Name::multipleRegionSwitches + QStringList{Name::multipleRegionArrangement};
    common.erase(std::remove_if(common.begin(), common.end(),
                                [&names](const QString& name) { return !names.contains(name); }),
                 common.end());
    const int current = m_ui->tabRegions->currentIndex();
    if (!isRegion(current))
        return;
    RegionTableWidget* table = m_tabs[static_cast<std::size_t>(current)].table;
    table->updateFeatures(common + table->pendingFeatures());
}

void MultiROIWidget::noteMode(const QString& name)
{
    if (name == Name::subRegionMode && isVisible())
        m_modeReports.note();
}

void MultiROIWidget::refreshSelectedRegion(bool withMode)
{
    const int region = m_regions.selected();
    if (!isRegion(region))
        return;
    if (withMode)
        followRegionMode(region);
    if (m_label->isRegionShown(region))
        updateRegion(region);
    else
        m_tabs[static_cast<std::size_t>(region)].table->refresh();
}

void MultiROIWidget::lookForSwitchedRegions()
{
    bool isUnchanged = true;
    m_modeReports.lookBegins();
    for (int region = 0; region < regionCount(); ++region) {
        if (select(region) && followRegionMode(region))
            isUnchanged = false;
    }
    select(m_ui->tabRegions->currentIndex());
    m_modeReports.lookEnded(isUnchanged);
}

void MultiROIWidget::followSelector()
{
    const int region = m_regions.selected();
    if (!isRegion(region) || region == m_selectedByPage)
        return;
    selectRegionTab(region);
    setButton(region, m_regions.isOn());
}

void MultiROIWidget::refreshSwitch()
{
    const bool isEnabled
        = featureManager->GetValue(Name::multipleRegionEnable, Name::multipleRegionsEnable) > 0.0;
    {
        // Not setChecked(): in the middle of a click it would leave the box's published state
        // behind, and the next click would not be told.
        const QSignalBlocker blocker(m_ui->chkMultipleRegionEnable);
        m_ui->chkMultipleRegionEnable->setCheckState(isEnabled ? Qt::Checked : Qt::Unchecked);
        m_ui->chkMultipleRegionEnable->setEnabled(featureManager->IsFeatureWritable(
            Name::multipleRegionEnable, Name::multipleRegionsEnable));
    }
    if (std::exchange(m_enabled, isEnabled) != isEnabled)
        emit multipleRegionsEnabled(isEnabled);
}

void MultiROIWidget::refreshArrangement()
{
    if (featureManager->HasFeature(Name::multipleRegionArrangement))
        fillComboBox(Name::multipleRegionArrangement, m_ui->cmbMultipleRegionArrangement, false);
    m_label->setArrangementMode(mode());
    updateButtons();
}

void MultiROIWidget::testCompatibility()
{
    const auto isBinned
        = [this](const QString& name) { return featureManager->GetValue(name) > 1.0; };
    const auto isReversed = [this](const QString& name) {
        return featureManager->HasFeature(name) && featureManager->GetValue(name) != 0.0;
    };
    const bool isIncompatible = isBinned(Name::binningHorizontal) || isBinned(Name::binningVertical)
        || isReversed(Name::reverseX) || isReversed(Name::reverseY);
    m_ui->lblWarning->setText(isIncompatible
                                  ? tr("Multi ROI widget cannot be used in combination with "
                                       "Binning or ReverseX/Y.")
                                  : QString());
    m_ui->frameWarning->setVisible(isIncompatible);
    m_ui->frame->setVisible(!isIncompatible);
    m_ui->grpROI->setVisible(!isIncompatible);
    m_ui->tabRegions->setVisible(!isIncompatible);
}

void MultiROIWidget::refreshAllRegions()
{
    if (m_loading || !m_ui)
        return;
    {
        const Work work(this);
        const QSignalBlocker blocker(m_label);
        const int current = m_ui->tabRegions->currentIndex();
        for (int region = 0; region < regionCount(); ++region) {
            if (select(region)) {
                followRegionMode(region);
                // Tables of other inactive regions are filled when they are seen.
                if (region == current || m_label->isRegionShown(region) || m_regions.isValid())
                    updateRegion(region);
            }
            emit regionColorChanged(region, m_label->regionColor(region));
        }
        setSubRegionSelector(current);
    }
    // The colours of conflicts among others, which the blocked label could not tell.
    m_label->announceRegions();
}

/// Another client may have switched the region, which is selected, on or off: answers whether.
bool MultiROIWidget::followRegionMode(int region)
{
    const bool isOn = m_regions.isOn();
    if (isOn == m_label->isRegionShown(region))
        return false;
    updateRegion(region);
    emit regionActivated(region, isOn);
    return true;
}

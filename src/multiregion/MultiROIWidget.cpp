#include "multiregion/MultiROIWidget.h"

#include "features/FeatureNames.h"
#include "multiregion/RegionLabelWidget.h"
#include "multiregion/RegionTableWidget.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "ui_MultiROIWidget.h"

#include <mutex>
#include <utility>

namespace Name = FeatureNames;

namespace {

/// The axis on which a feature places a region.
std::optional<Qt::Orientation> axisOf(const QString& feature)
{
    if (feature.endsWith(QLatin1String("OffsetX")) || feature.endsWith(QLatin1String("Width")))
        return Qt::Horizontal;
    if (feature.endsWith(QLatin1String("OffsetY")) || feature.endsWith(QLatin1String("Height")))
        return Qt::Vertical;
    return std::nullopt;
}

} // namespace

MultiROIWidget::Work::Work(MultiROIWidget* page)
    : m_page(page)
{
    m_page->m_loading = true;
    m_page->setCursor(Qt::WaitCursor);
    m_page->suspendUpdates();
}

MultiROIWidget::Work::~Work()
{
    if (!m_page)
        return;
    m_page->resumeUpdates(false);
    m_page->m_loading = false;
    m_page->unsetCursor();
}

void MultiROIWidget::saveNewRegionGeometry(int regionNo, QRect regionRect)
{
    if (!isRegion(regionNo))
        return;
    // The sizes of the region selected until now: the camera is written in the order they give.
    const QSize former = m_regions.geometry().size();
    const QPointer<MultiROIWidget> page(this);
    if (!select(regionNo)) {
        refreshAllRegions();
        if (page)
            emit currentRegionChanged(regionNo);
        return;
    }
    const QSize own = m_regions.geometry().size();
    m_regions.writeGeometry(regionRect, former);
    if (!regionRect.isNull()) {
        // In the order that suits another region the camera may have cut off what fits.
        const QRect written = m_regions.geometry();
        if (own != former && written != regionRect)
            m_regions.writeGeometry(regionRect, written.size());
        m_regions.switchOn(true);
        // The neighbours test against what the camera made of it.
        updateRegion(regionNo);
        emit regionActivated(regionNo, true);
    }
    if (page)
        refreshAllRegions();
    if (page)
        emit currentRegionChanged(regionNo);
}

void MultiROIWidget::onArrangementModeChanged(int index)
{
    if (!m_ui || index < 0)
        return;
    featureManager->SetStringValue(Name::multipleRegionArrangement,
                                   m_ui->cmbMultipleRegionArrangement->itemText(index));
    refreshArrangement();
}

void MultiROIWidget::selectRegionTab(int regionNo)
{
    if (!isRegion(regionNo))
        return;
    if (m_ui->tabRegions->currentIndex() == regionNo)
        setSubRegionSelector(regionNo);
    else
        m_ui->tabRegions->setCurrentIndex(regionNo);
}

void MultiROIWidget::camIsStreaming(bool streaming)
{
    m_streaming = streaming;
    if (m_ui)
        updateButtons();
}

void MultiROIWidget::setSubRegionSelector(int regionNo)
{
    if (!m_label || regionNo < 0) // no tab is left
        return;
    if (!isRegion(regionNo)) {
        select(regionNo); // whether there is such a region is for the camera to say
        return;
    }
    m_label->selectRegion(regionNo);
    if (select(regionNo) && !m_loading)
        m_tabs[static_cast<std::size_t>(regionNo)].table->refresh();
    onDragAreaResized();
}

void MultiROIWidget::setBackgroundImage(std::shared_ptr<QPixmap> image)
{
    if (m_label)
        m_label->setBackgroundImage(std::move(image), m_regions.sensorSize(), {});
}

void MultiROIWidget::updateDragArea()
{
    if (!m_label)
        return;
    m_sensorSize = m_regions.sensorSize();
    m_label->setSensorSize(m_sensorSize);
}

/// A scroll area does not grow with its content: the labels would be cut off.
void MultiROIWidget::onDragAreaResized()
{
    if (!m_ui)
        return;
    m_ui->scrollRegionLabelsContents->layout()->activate();
    m_ui->scrollRegionLabels->setMinimumWidth(m_ui->scrollRegionLabelsContents->sizeHint().width());
}

void MultiROIWidget::onRegionColorChanged(int regionNo, QColor newColor)
{
    if (isRegion(regionNo))
        m_tabs[static_cast<std::size_t>(regionNo)].label->updateColor(regionNo, newColor);
}

void MultiROIWidget::setFeatureValue(int regionNo, int masterRegion, QString featureName,
                                     QVariant value)
{
    if (!isRegion(regionNo))
        return;
    QVector<int> regions;
    for (const int region : {masterRegion, regionNo}) {
        if (!isRegion(region))
            continue;
        if (const auto axis = axisOf(featureName))
            regions += m_label->sharingRegions(region, *axis);
        regions << region;
    }
    for (int i = 0; i < regions.size(); ++i) {
        const int region = regions[i];
        if (regions.indexOf(region) < i)
            continue;
        if (!select(region) || !featureManager->SetVariantValue(featureName, value))
            log(tr("SubRegion: %1, Saving feature '%2' to value=%3 failed.")
                    .arg(QString::number(region), featureName, value.toString()));
    }
    refreshAllRegions();
}

void MultiROIWidget::onFeatureEditorActivated(bool status)
{
    if (!status)
        refreshPendingSoon();
}

bool MultiROIWidget::select(int region)
{
    QString failure;
    {
        const std::unique_lock<QMutex> lock(m_selectorLock, std::try_to_lock);
        if (!lock)
            return false;
        const ModeWatch::Selecting selecting(m_modeReports);
        failure = m_regions.select(region);
        if (failure.isEmpty())
            m_selectedByPage = region;
    }
    log(failure);
    return failure.isEmpty();
}

void MultiROIWidget::log(const QString& text)
{
    if (!text.isEmpty())
        emit loggingMessage(ZebViewerLogMultiRegion, text);
}

/// Shows what the camera tells of the region, which is selected.
void MultiROIWidget::updateRegion(int region)
{
    const QRect geometry = m_regions.geometry();
    const RegionTab& tab = m_tabs[static_cast<std::size_t>(region)];
    tab.table->refresh();
    tab.label->setRegionGeometry(geometry);
    tab.label->highlightIfSelected(m_ui->tabRegions->currentIndex());
    m_label->setRegionLimits(region, m_regions.limits());
    m_label->onRegionGeometryChanged(region, geometry);
}

void MultiROIWidget::onRegionActivated(int regionNo, bool active)
{
    if (!isRegion(regionNo))
        return;
    setButton(regionNo, active);
    m_tabs[static_cast<std::size_t>(regionNo)].label->setVisible(active);
    onDragAreaResized();
}

QString MultiROIWidget::mode() const
{
    return m_ui ? m_ui->cmbMultipleRegionArrangement->currentText() : QString();
}

void MultiROIWidget::onPaletteChanged(QEvent*) { }

void MultiROIWidget::onEnableToggled(bool enabled)
{
    featureManager->SetValue(Name::multipleRegionEnable, Name::multipleRegionsEnable,
                             enabled ? 1.0 : 0.0);
    m_enabled.reset(); // a refused switch is told too
    refreshSwitch();
}

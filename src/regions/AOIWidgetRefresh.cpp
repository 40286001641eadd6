#include "regions/AOIWidget.h"

#include "features/NumberConversion.h"
#include "regions/image/RegionAxis.h"
#include "regions/image/RegionConsistency.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AOIWidget.h"

#include <QApplication>

#include <algorithm>
#include <initializer_list>
#include <utility>

// What the page shows of the camera.

namespace {

const QLatin1String multipleRegions("MultipleRegionEnable");
const QLatin1String multipleRegionsOther("MultipleRegionsEnable");

} // namespace

void AOIWidget::refreshFeatures()
{
    const QStringList names = *changedFeatures;
    if (!m_ui)
        return;
    if (m_label->isDragging()) {
        // The names are gone by the end of the drag.
        m_fullRefreshPending = m_fullRefreshPending || !names.isEmpty();
        return;
    }
    const bool readsAll = std::exchange(m_fullRefreshPending, false);
    const auto readsAny = [&](std::initializer_list<const char*> candidates) {
        return readsAll || std::any_of(candidates.begin(), candidates.end(), [&](const char* name) {
                   return names.contains(QLatin1String(name));
               });
    };
    bool isComplete = true;
    if (readsAny({"OffsetY", "Height", "HeightMax"})) {
        m_vertical->forgetMaximum();
        m_label->setEnabled(true);
        // The vertical increment too becomes the step of the horizontal field.
        isComplete = m_vertical->refresh(m_ui->spinLeft);
    }
    if (readsAny({"OffsetX", "Width", "WidthMax"})) {
        m_horizontal->forgetMaximum();
        m_label->setEnabled(true);
        isComplete = m_horizontal->refresh(m_ui->spinLeft) && isComplete;
    }
    if (readsAny({"MultipleRegionEnable", "MultipleRegionsEnable"}))
        refreshMultipleRegions();
    m_fullRefreshPending = m_fullRefreshPending || !isComplete;
    if (readsAll || !names.isEmpty()) {
        showOnLabel();
        checkConsistency();
    }
}

void AOIWidget::refreshMultipleRegions()
{
    if (featureManager->HasFeature(multipleRegions, multipleRegionsOther))
        onMultipleRegionsEnabled(featureManager->GetValue(multipleRegions, multipleRegionsOther)
                                 > 0.0);
}

void AOIWidget::showOnLabel()
{
    const QSize sensor(toInt(m_horizontal->maximum()), toInt(m_vertical->maximum()));
    if (m_label->sensorSize() != sensor) {
        m_label->setSensorSize(sensor.width(), sensor.height());
        if (m_background) {
            // Showing an image takes back the cursor of whoever chose it; nobody did.
            QApplication::setOverrideCursor(Qt::WaitCursor);
            showBackground();
        }
    }
    const AxisSpan vertical = m_vertical->onCamera();
    const AxisSpan horizontal = m_horizontal->onCamera();
    m_label->setRegion(toInt(vertical.offset), toInt(horizontal.offset), toInt(horizontal.size),
                       toInt(vertical.size));
}

QString AOIWidget::problemText(const QString& problems)
{
    return tr("Invalid settings: ") + problems;
}

void AOIWidget::checkConsistency()
{
    const QString problems = regionProblems(m_horizontal->inFields(), m_horizontal->maximum(),
                                            m_vertical->inFields(), m_vertical->maximum());
    m_ui->labelInvalidSettings->setText(problemText(problems));
    m_ui->labelInvalidSettings->setVisible(!problems.isEmpty());
}

void AOIWidget::showBackground()
{
    const auto smallerOf = [this](const char* sensorName, double maximum) {
        const QString name = QString::fromLatin1(sensorName);
        const double extent
            = featureManager->HasFeature(name) ? featureManager->GetValue(name) : 0.0;
        return toInt(extent >= 1.0 ? std::min(extent, maximum) : maximum);
    };
    m_horizontal->forgetMaximum();
    m_vertical->forgetMaximum();
    m_label->showBackground(m_background,
                            {smallerOf("SensorWidth", m_horizontal->maximum()),
                             smallerOf("SensorHeight", m_vertical->maximum())},
                            {});
}

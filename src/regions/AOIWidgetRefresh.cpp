#include "regions/AOIWidget.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "regions/image/RegionAxis.h"
#include "regions/image/RegionConsistency.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AOIWidget.h"

#include <QApplication>

#include <algorithm>

// What the page shows of the camera.

namespace Name = FeatureNames;

bool AOIWidget::isAtWork() const
{
    return m_label && m_label->isDragging();
}

Changes AOIWidget::refresh(const Changes& changes)
{
    if (!m_ui || changes.isEmpty())
        return {};
    Changes untold;
    if (changes.any({Name::offsetY, Name::height, Name::heightMax})) {
        m_vertical->forgetMaximum();
        m_label->setEnabled(true);
        // The vertical increment too becomes the step of the horizontal field.
        if (!m_vertical->refresh(m_ui->spinLeft))
            untold.add({false, {Name::offsetY}});
    }
    if (changes.any({Name::offsetX, Name::width, Name::widthMax})) {
        m_horizontal->forgetMaximum();
        m_label->setEnabled(true);
        if (!m_horizontal->refresh(m_ui->spinLeft))
            untold.add({false, {Name::offsetX}});
    }
    if (changes.any(Name::multipleRegionSwitches))
        refreshMultipleRegions();
    showOnLabel();
    checkConsistency();
    return untold;
}

void AOIWidget::refreshMultipleRegions()
{
    if (featureManager->HasFeature(Name::multipleRegionEnable, Name::multipleRegionsEnable))
        onMultipleRegionsEnabled(
            featureManager->GetValue(Name::multipleRegionEnable, Name::multipleRegionsEnable)
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

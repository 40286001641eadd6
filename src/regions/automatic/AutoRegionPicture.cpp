#include "regions/automatic/AutoRegionPicture.h"

#include "regions/automatic/AutoRegionCamera.h"
#include "regions/label/RubberBandLabel.h"

#include <QGuiApplication>
#include <QLayout>
#include <QSignalBlocker>

#include <utility>

AutoRegionPicture::AutoRegionPicture(AutoRegionCamera& camera, const RegionLimits& limits,
                                     QLayout& layout)
    : m_camera(camera)
    , m_label(new RubberBandLabel(sizeOf(limits).width(), sizeOf(limits).height(), Qt::darkGreen,
                                  nullptr))
{
    layout.addWidget(m_label);
}

void AutoRegionPicture::setImage(std::shared_ptr<QPixmap> image)
{
    m_image = std::move(image);
    m_imageWaits = m_label->isDragging();
    if (!m_imageWaits)
        showImage();
}

void AutoRegionPicture::showWaitingImage()
{
    if (std::exchange(m_imageWaits, false))
        showImage();
}

void AutoRegionPicture::setSize(const RegionLimits& limits)
{
    const QSize size = sizeOf(limits);
    if (m_label->sensorSize() == size)
        return;
    m_label->setSensorSize(size.width(), size.height());
    // Showing an image takes back the cursor of whoever chose it; nobody did.
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    showImage();
}

void AutoRegionPicture::showImage()
{
    const QRect region = m_camera.imageRegion(m_image != nullptr);
    m_label->showBackground(m_image, m_camera.sensorSize(), region);
}

void AutoRegionPicture::showRegion(const RegionLimits& limits)
{
    if (!m_camera.usesEdges() && !m_camera.usesSizes())
        return;
    const SensorRegion region = m_camera.usesEdges()
        ? drawnDspRegion(m_camera.edges(), limits)
        : drawnAutoRegion(m_camera.offsetAndSize(), m_camera.origin(), limits);
    const QSignalBlocker blocker(m_label);
    m_label->setRegion(region.top, region.left, region.width, region.height);
}

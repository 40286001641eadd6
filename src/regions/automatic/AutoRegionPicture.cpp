#include "regions/automatic/AutoRegionPicture.h"

#include "features/NumberConversion.h"
#include "regions/automatic/AutoRegionCamera.h"
#include "regions/label/RubberBandLabel.h"

#include <QGuiApplication>
#include <QLayout>
#include <QSignalBlocker>

#include <utility>

AutoRegionPicture::AutoRegionPicture(AutoRegionCamera& camera, QLayout& layout)
    : m_camera(camera)
    , m_label(new RubberBandLabel(toInt(camera.limits().width()), toInt(camera.limits().height()),
                                  Qt::darkGreen, nullptr))
{
    layout.addWidget(m_label);
}

void AutoRegionPicture::showImage(std::shared_ptr<QPixmap> image)
{
    m_image = std::move(image);
    m_imageWaits = m_label->isDragging();
    if (!m_imageWaits)
        showImage();
    QGuiApplication::restoreOverrideCursor(); // that of whoever chose the image
}

void AutoRegionPicture::showWaitingImage()
{
    if (std::exchange(m_imageWaits, false))
        showImage();
}

void AutoRegionPicture::retryImage()
{
    if (!m_isPlaceTold)
        showImage();
}

void AutoRegionPicture::followLimits()
{
    const QSize size(toInt(m_camera.limits().width()), toInt(m_camera.limits().height()));
    if (m_label->sensorSize() == size)
        return;
    m_label->setSensorSize(size.width(), size.height());
    showImage();
}

void AutoRegionPicture::showImage()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor); // which the label takes back
    const int untoldBefore = m_camera.untoldCount();
    const QRect region = m_camera.readImageRegion(m_image != nullptr);
    const QSize sensor = m_camera.readSensorSize();
    m_isPlaceTold = m_camera.untoldCount() == untoldBefore;
    m_label->showBackground(m_image, sensor, region);
}

void AutoRegionPicture::showRegion()
{
    if (!(m_camera.usesEdges() || m_camera.usesSizes()) || !m_camera.isRegionTold())
        return;
    const QRect region = m_camera.drawn();
    const QSignalBlocker blocker(m_label);
    m_label->setRegion(region.y(), region.x(), region.width(), region.height());
}

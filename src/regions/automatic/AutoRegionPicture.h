#pragma once

#include <QPixmap>

#include <memory>

class AutoRegionCamera;
class QLayout;
class RubberBandLabel;

/// The region on the image: the label, and what it shows of the camera.
class AutoRegionPicture
{
public:
    /// The layout's parent owns the label.
    AutoRegionPicture(AutoRegionCamera& camera, QLayout& layout);

    RubberBandLabel* label() const { return m_label; }

    /// During a drag, in which nothing may be written, the image waits for showWaitingImage().
    void showImage(std::shared_ptr<QPixmap> image);
    void showWaitingImage();
    /// Once more, when the camera did not tell where the image lies.
    void retryImage();
    /// Keeps the image. Nothing happens when the label has this size already.
    void followLimits();

    /// The camera's region. The label does not emit.
    void showRegion();

private:
    void showImage();

    AutoRegionCamera& m_camera;
    RubberBandLabel* m_label;
    std::shared_ptr<QPixmap> m_image;
    bool m_imageWaits = false;
    bool m_isPlaceTold = true;
};

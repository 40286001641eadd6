#pragma once

#include "sensor/BandImage.h"

#include <QRubberBand>
#include <QStyleOption>

#include <optional>

/// A rectangular rubber band that its parent paints: Qt would paint all of a translucent widget
/// that moves, and all that is below it, where little more than the frame changes. The parent calls
/// paint() at the end of its own, and the band updates what its moves have changed of the parent.
class LabelBand : public QRubberBand
{
    Q_OBJECT

public:
    explicit LabelBand(QWidget* parent);

    /// Paints the part in @p region; painter and region in the parent's coordinates.
    void paint(QPainter& painter, const QRegion& region);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QStyleOptionRubberBand styleOption() const;
    const BandImage& image();

    QRect m_shown; ///< where the parent has painted the band
    std::optional<BandImage> m_image;
};

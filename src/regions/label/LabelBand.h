#pragma once

#include "sensor/BandImage.h"

#include <QRubberBand>
#include <QStyleOption>

#include <optional>

/// A rectangular rubber band that its parent paints.
///
/// Qt paints all of a translucent widget that moves, and all that is below it. Of a band that
/// covers half a large picture little more than the frame changes, so the band takes no part in
/// Qt's painting: the parent calls paint() at the end of its own, and the band updates the parts of
/// the parent that its moves have changed.
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

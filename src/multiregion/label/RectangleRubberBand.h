#pragma once

#include "multiregion/label/HandleDrag.h"
#include "sensor/BandImage.h"

#include <QColor>
#include <QHash>
#include <QPainterPath>
#include <QRubberBand>

#include <optional>

class BandSurroundings;
class LineRubberBand;

/// One region on the region label, which hands it the mouse. It cannot be dragged over another
/// region; while it overlaps one with a lower number it is red. Label pixels throughout.
///
/// A band on whose edges others depend goes only where these can follow it: the camera takes shared
/// edges for all members at once, which would bring the others over their neighbours.
class RectangleRubberBand : public QRubberBand
{
    Q_OBJECT

public:
    /// @param label the parent, which knows the other regions; may be null
    RectangleRubberBand(int regionNo, const QRect& geometry, const QSize& minimumSize,
                        const QColor& color, BandSurroundings* label);

    int regionNo() const { return m_regionNo; }
    /// Red in a conflict, else the region's own.
    QColor shownColor() const { return m_inConflict ? QColor(Qt::red) : m_color; }
    void setOwnColor(const QColor& color);
    void setSizeLimits(const BandSizeLimits& limits) { m_limits = limits; }

    HandleGrab grabAt(const QPoint& point) const;

    /// Takes hold of the band.
    void press(const QPoint& point);
    /// Carries a drag over to another size of the picture.
    /// @param atPress the band as it would have been there at the press
    void rescaleDrag(const QSize& from, const QSize& to, const QRect& atPress);
    /// Lets go without a report.
    void dropDrag();

signals:
    void regionBandSelected(int regionNo);
    /// A drag has ended here, or a neighbour has brought or solved a conflict.
    void geometryChanged(int regionNo, QRect newGeometry);
    void colorChanged(int regionNo, QColor color);

public slots:
    void onResizeFinished(QPoint point);
    void resizeMoveToPoint(QPoint point);
    void onIntersectionFound(int conflictRegion);
    void highlightIfSelected(int selectedRegion);
    void onNeighbourRegionActivated(int regionNo, bool activated);
    /// Reads the sending line; a null rectangle lifts what it set.
    void onConstraintBandChanged(QRect lineBandGeometry);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showIfAllowed(const QRect& band);
    void applyColor();
    void applyHighlight();
    QColor highlight() const;
    QString numberText() const
    {
        return m_selected ? QStringLiteral("[ %1 ]").arg(m_regionNo) : QString::number(m_regionNo);
    }
    void prepareNumber();
    void drawNumber(const QRect& area);

    const int m_regionNo;
    QColor m_color;
    bool m_inConflict = false;
    bool m_selected = true;
    HandleGrab m_grab;
    std::optional<QPoint> m_pressPoint;
    QRect m_atPress;
    BandSizeLimits m_limits;
    QHash<const LineRubberBand*, MoveConstraints> m_lineConstraints;
    BandSurroundings* const m_label;
    std::optional<BandImage> m_image;
    QPainterPath m_number; ///< around the origin
};

#pragma once

#include "multiregion/label/ConstraintLineRules.h"
#include "multiregion/rules/ConstraintGroups.h"

#include <QPixmap>
#include <QRubberBand>

class SensorLabel;

/// An edge that the members of a group share, on the region label. Label pixels throughout.
class LineRubberBand : public QRubberBand
{
    Q_OBJECT

public:
    static constexpr int vertical = 1;
    static constexpr int horizontal = 2;

    /// @param orientation 1 for a vertical line, any other value for a horizontal one
    /// @param position x of a vertical line, y of a horizontal one
    /// @param label bounds the line by its image; may be null
    LineRubberBand(int orientation, int position, QWidget* parent, int length, const QColor& color,
                   SensorLabel* label);

    /// Which edge of which regions the line marks.
    void setEdge(const ConstraintGroup& group, BandEdge edge)
    {
        m_group = group;
        m_edge = edge;
    }
    const ConstraintGroup& group() const { return m_group; }
    BandEdge edge() const { return m_edge; }

    int position() const { return isVertical() ? x() : y(); }
    /// Of a point that is near enough to grab the line.
    std::optional<int> distanceTo(const QPoint& point) const;

    void setBounds(const LineBounds& bounds) { m_bounds = bounds; }
    /// Places the line without a signal.
    void place(int position, int length);
    void setColor(const QColor& color);
    /// Tells the bands where the line is.
    void announce() { emit geometryChanged(geometry()); }

signals:
    /// A null rectangle: the line goes.
    void geometryChanged(QRect newGeometry);

public slots:
    void onMoveStarted() { m_dragging = true; }
    void onMoveFinished() { m_dragging = false; }
    void moveToPoint(QPoint point);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isVertical() const { return m_orientation == vertical; }
    void moveTo(int position) { isVertical() ? move(position, 0) : move(0, position); }

    const int m_orientation;
    bool m_dragging = false;
    LineBounds m_bounds;
    ConstraintGroup m_group;
    BandEdge m_edge = BandEdge::Leading;
    QPixmap m_picture; ///< as the style draws the line, null until it is painted
};

#pragma once

#include "featuretable/record/ValueRange.h"

#include <qwt_slider.h>

class FeatureSlider : public QwtSlider
{
    Q_OBJECT

public:
    FeatureSlider(const SliderRange& range, QWidget* parent);

    void follow(double value);

signals:
    /// The user moved the handle; @p value is one that the feature can take.
    void moved(double value);
    /// The mouse button was released, from the handle or from the groove.
    void released();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void drawSlider(QPainter* painter, const QRect& rect) const override;

private:
    void onValueChanged(double value);

    SliderRange m_range;
    double m_position;
    bool m_dragged = false;
};

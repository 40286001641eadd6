#pragma once

#include "featuretable/editors/DelegateWidget.h"

#include <QTimer>

class FeatureSlider;

/// A numeric field that may have a slider; a narrow cell shows the field alone. Moves of the slider
/// go to the field at once and are announced at most 20 times a second; its release finishes the
/// editing. The last value always arrives, unless Escape cancels it.
class SliderEditor : public DelegateWidget
{
    Q_OBJECT

public:
    SliderEditor(const FeatureInfo& info, QWidget* parent);

protected:
    /// Shows a value of the cell or the slider in the field, without an event of the field.
    virtual void showNumber(double value) = 0;
    bool showValue(const QVariant& value) override;

    void addSlider(const FeatureInfo& info);
    void moveSlider(double value);

    void resizeEvent(QResizeEvent* event) override;

private:
    void onSliderMoved(double value);
    void announce();

    FeatureSlider* m_slider = nullptr;
    QTimer m_pause;                  ///< between two announcements
    std::optional<double> m_movedTo; ///< not yet announced
    int m_widthWithSlider = 0;
};

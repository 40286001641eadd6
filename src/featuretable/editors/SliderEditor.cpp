#include "featuretable/editors/SliderEditor.h"

#include "featuretable/editors/FeatureSlider.h"

namespace {

constexpr std::chrono::milliseconds announcementInterval(50);

} // namespace

SliderEditor::SliderEditor(const FeatureInfo& info, QWidget* parent)
    : DelegateWidget(info, parent)
    , m_announcements(announcementInterval)
{
    connect(&m_announcements, &RateLimiter::due, this, &SliderEditor::onAnnouncementDue);
}

void SliderEditor::addSlider(const std::optional<SliderRange>& range)
{
    if (!range)
        return;
    m_slider = new FeatureSlider(*range, this);
    addControl(m_slider, "editorSlider", 2);
    m_widthWithSlider = minimumSizeHint().width();
    connect(m_slider, &FeatureSlider::moved, this, &SliderEditor::onSliderMoved);
    connect(m_slider, &FeatureSlider::released, this, &SliderEditor::finish);
}

void SliderEditor::moveSlider(double value)
{
    if (m_slider)
        m_slider->follow(value);
}

void SliderEditor::resizeEvent(QResizeEvent* event)
{
    DelegateWidget::resizeEvent(event);
    if (m_slider)
        m_slider->setVisible(width() >= m_widthWithSlider);
}

void SliderEditor::onSliderMoved(double value)
{
    touch();
    m_movedTo = value;
    showNumber(value);
    m_announcements.request();
}

void SliderEditor::onAnnouncementDue()
{
    if (!hasEnded())
        emit sliderValueChanged(m_movedTo);
}

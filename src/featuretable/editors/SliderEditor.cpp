#include "featuretable/editors/SliderEditor.h"

#include "featuretable/editors/FeatureSlider.h"

#include <utility>

namespace {

constexpr int announcementIntervalMs = 50;

} // namespace

SliderEditor::SliderEditor(const FeatureInfo& info, QWidget* parent)
    : DelegateWidget(info, parent)
{
    m_pause.setInterval(announcementIntervalMs);
    m_pause.setSingleShot(true);
    m_pause.setTimerType(Qt::PreciseTimer);
    connect(&m_pause, &QTimer::timeout, this, &SliderEditor::announce);
}

bool SliderEditor::showValue(const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber) {
        showNumber(number);
        moveSlider(number);
    }
    return isNumber;
}

void SliderEditor::addSlider(const FeatureInfo& info)
{
    const auto range = sliderRange(info);
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
    if (!m_pause.isActive())
        announce();
}

void SliderEditor::announce()
{
    if (hasEnded() || !m_movedTo)
        return;
    m_pause.start();
    emit sliderValueChanged(*std::exchange(m_movedTo, std::nullopt));
}

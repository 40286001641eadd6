#include "widgets/CollapsingButton.h"

#include <QApplication>
#include <QPropertyAnimation>

namespace {
constexpr int durationMs = 300;
constexpr int endMargin = 10; // pixels
constexpr int arrowSize = 8;  // pixels
} // namespace

CollapsingButton::CollapsingButton(QWidget* parent)
    : QToolButton(parent)
{
    setCheckable(true);
    setStyleSheet(QStringLiteral("background:none"));
    setIconSize(QSize(arrowSize, arrowSize));
    setFont(QApplication::font());
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon); // an arrow alone would hide the title
    connect(this, &QToolButton::toggled, this, &CollapsingButton::onToggled);
}

void CollapsingButton::setText(const QString& text)
{
    QToolButton::setText(QLatin1Char(' ') + text);
}

void CollapsingButton::setContent(QWidget* content)
{
    m_animationGroup.clear();
    if (m_content)
        m_content->disconnect(&m_animationGroup);
    m_content = content;
    setArrowType(isChecked() ? Qt::DownArrow : Qt::RightArrow);
    if (!content)
        return;

    auto* animation = new QPropertyAnimation(content, "maximumHeight");
    animation->setStartValue(0);
    animation->setEndValue(content->height() + endMargin);
    animation->setEasingCurve(QEasingCurve::InOutQuad);
    animation->setDuration(durationMs);
    m_animationGroup.addAnimation(animation);
    connect(content, &QObject::destroyed, &m_animationGroup, &QAnimationGroup::clear);
    if (!isChecked())
        content->setMaximumHeight(0);
}

void CollapsingButton::onToggled(bool checked)
{
    setArrowType(checked ? Qt::DownArrow : Qt::RightArrow);
    if (!m_content)
        return;

    // Content that grew while it was shown would jump to the old end value before it folds.
    auto* animation = qobject_cast<QPropertyAnimation*>(m_animationGroup.animationAt(0));
    if (!checked && animation && animation->endValue().toInt() < m_content->height())
        animation->setEndValue(m_content->height());
    m_animationGroup.setDirection(checked ? QAbstractAnimation::Forward
                                          : QAbstractAnimation::Backward);
    m_animationGroup.start();
}

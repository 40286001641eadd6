#pragma once

#include <QParallelAnimationGroup>
#include <QPointer>
#include <QToolButton>

/// An arrow and a title. Checked shows the section's content, unchecked folds it away.
class CollapsingButton : public QToolButton
{
    Q_OBJECT

public:
    explicit CollapsingButton(QWidget* parent);

    /// Takes the widget to fold, which stays its parent's; an unchecked button folds it at once.
    /// What a later unfolding reaches is its height at this moment, with a small margin.
    void setContent(QWidget* content);

    /// Sets the title, kept clear of the arrow by one space.
    void setText(const QString& text);

private:
    void onToggled(bool checked);

    QPointer<QWidget> m_content;
    QParallelAnimationGroup m_animationGroup;
};

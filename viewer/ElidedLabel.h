#pragma once

#include <QLabel>

/// One line of text, which ends in dots where there is no room for it; the tool tip has it whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setText(const QString& text);

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

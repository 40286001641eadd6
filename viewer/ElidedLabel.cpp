#include "ElidedLabel.h"

#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>

void ElidedLabel::setText(const QString& text)
{
    QLabel::setText(text);
    setToolTip(text);
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                         fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()),
                         foregroundRole());
}

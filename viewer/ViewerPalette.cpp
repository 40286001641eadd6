#include "ViewerPalette.h"

#include <QApplication>
#include <QStyle>

QPalette lightPalette()
{
    constexpr int opacity = 160; // of 255: the style's own half can hardly be read
    QPalette palette = QApplication::style()->standardPalette();
    QColor dimmed = palette.color(QPalette::Text);
    dimmed.setAlpha(opacity);
    palette.setColor(QPalette::PlaceholderText, dimmed);
    return palette;
}

QPalette darkPalette()
{
    const QColor window(45, 47, 51);
    const QColor base(31, 33, 36);
    const QColor text(222, 224, 227);
    const QColor dimmed(128, 131, 136);

    QPalette palette(QColor(58, 61, 66), window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor(38, 40, 44));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(62, 65, 70));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(155, 158, 163));
    palette.setColor(QPalette::Highlight, QColor(56, 111, 205));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 160, 245));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, dimmed);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(70, 73, 78));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, dimmed);
    return palette;
}

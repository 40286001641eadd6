#include "widgets/Theme.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>

#include <cmath>

namespace {

constexpr double middleLuminance = 0.18; // as far from black as from white, to the eye
constexpr int darkLightness = 128;

double luminance(const QColor& color)
{
    constexpr double gamma = 2.2;
    return 0.2126 * std::pow(color.redF(), gamma) + 0.7152 * std::pow(color.greenF(), gamma)
        + 0.0722 * std::pow(color.blueF(), gamma);
}

} // namespace

QString plateFor(const QColor& text)
{
    return luminance(text) < middleLuminance ? QStringLiteral("white") : QStringLiteral("black");
}

void outlineControls(const QWidget* page)
{
    // Fusion outlines in a darker shade of the window's colour, which nobody sees on a dark window.
    QPalette outlined;
    const bool isDark = outlined.color(QPalette::Window).lightness() < darkLightness;
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        outlined.setColor(group, QPalette::Window, isDark ? Qt::lightGray : Qt::gray);
    for (QWidget* control : page->findChildren<QWidget*>()) {
        if (qobject_cast<QAbstractSpinBox*>(control) || qobject_cast<QComboBox*>(control)
            || qobject_cast<QCheckBox*>(control) || qobject_cast<QPushButton*>(control)
            || qobject_cast<QLineEdit*>(control))
            control->setPalette(outlined);
    }
}

void restyle(QWidget* page)
{
    // A style sheet keeps the palette that it was set under; set again it tells polished widgets.
    page->ensurePolished();
    page->setStyleSheet(page->styleSheet());
    outlineControls(page);
}

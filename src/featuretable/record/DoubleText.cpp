#include "featuretable/record/DoubleText.h"

#include <QLocale>

#include <cmath>

namespace DoubleText {

QString fromNumber(double number)
{
    constexpr double smallestPlain = 1e-6;
    constexpr double largestPlain = 1e15;
    const double size = std::fabs(number);
    const bool plain = number == 0.0 || (size >= smallestPlain && size < largestPlain);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, plain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

std::optional<double> toNumber(const QString& text)
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    return isNumber && std::isfinite(number) ? number : std::optional<double>();
}

double rounded(double number, int digits)
{
    return QString::number(number, 'g', digits).toDouble();
}

} // namespace DoubleText

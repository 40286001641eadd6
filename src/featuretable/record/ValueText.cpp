#include "featuretable/record/ValueText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {

constexpr int decimalBase = 10;
constexpr int hexBase = 16;
constexpr int bitsPerByte = 8;
constexpr std::uint64_t byteMask = 0xFF;

// At most eight digits may be typed, and more may be shown.
constexpr IntegerNotation hexNotation{"([0-9a-fA-F]){1,8}", hexBase};
constexpr IntegerNotation ipNotation{R"((([01]?[0-9]?[0-9]|2[0-4][0-9]|25[0-5])\.){3})"
                                     R"(([01]?[0-9]?[0-9]|2[0-4][0-9]|25[0-5]))",
                                     decimalBase, 4, 1, '.'};
constexpr IntegerNotation macNotation{"^([0-9A-Fa-f]{2}[:-]){5}([0-9A-Fa-f]{2})$", hexBase, 6, 2,
                                      ':'};

} // namespace

const IntegerNotation* notationFor(const FeatureInfo& info)
{
    if (info.representation == "HexNumber")
        return &hexNotation;
    if (info.representation == "IPV4Address")
        return &ipNotation;
    return info.representation == "MACAddress" ? &macNotation : nullptr;
}

QString integerText(std::int64_t value, const IntegerNotation& notation)
{
    if (notation.base == decimalBase && notation.bytes == 0)
        return QString::number(qlonglong{value});
    auto rest = static_cast<std::uint64_t>(value);
    if (notation.bytes == 0)
        return QString::number(qulonglong{rest}, notation.base).toUpper();
    QStringList bytes;
    for (; bytes.size() < notation.bytes; rest >>= bitsPerByte)
        bytes.prepend(QStringLiteral("%1").arg(rest & byteMask, notation.digits, notation.base,
                                               QLatin1Char('0')));
    return bytes.join(QLatin1Char(notation.separator));
}

std::optional<std::int64_t> textToInteger(const QString& text, const IntegerNotation& notation)
{
    static const QRegularExpression separator(QStringLiteral("[.:-]"));
    if (notation.bytes == 0) {
        bool fits = false;
        const std::int64_t value = text.toLongLong(&fits, notation.base);
        return fits ? value : std::optional<std::int64_t>();
    }
    std::int64_t value = 0;
    for (const QString& byte : text.split(separator))
        value = value << bitsPerByte | byte.toInt(nullptr, notation.base);
    return value;
}

QString numberText(double number)
{
    constexpr double smallestPlain = 1e-6;
    constexpr double largestPlain = 1e15;
    const double size = std::fabs(number);
    const bool plain = number == 0.0 || (size >= smallestPlain && size < largestPlain);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, plain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

std::optional<double> textToNumber(const QString& text)
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    return isNumber && std::isfinite(number) ? number : std::optional<double>();
}

QString cellText(const FeatureInfo& info, const QVariant& value)
{
    if (info.isRaw)
        return {};
    if (info.isCommand)
        return QCoreApplication::translate("CommandEditor", "Execute");
    if (value.type() == QVariant::Double)
        return numberText(value.toDouble());
    if (value.type() != QVariant::LongLong)
        return value.toString();
    const IntegerNotation* notation = notationFor(info);
    return integerText(value.toLongLong(), notation ? *notation : decimalNotation);
}

QString accessibleCellText(const FeatureInfo& info, const QVariant& value)
{
    QString text = cellText(info, value);
    const bool isNumber = value.type() == QVariant::LongLong || value.type() == QVariant::Double;
    if (isNumber && !info.unit.empty())
        text += QLatin1Char(' ') + QString::fromStdString(info.unit);
    return QStringLiteral("%1: %2").arg(QString::fromStdString(info.displayName), text);
}

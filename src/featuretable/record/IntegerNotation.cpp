#include "featuretable/record/IntegerNotation.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace {

constexpr int decimalBase = 10;
constexpr int hexBase = 16;
constexpr int bitsPerByte = 8;
constexpr int ipBytes = 4;
constexpr int macBytes = 6;
constexpr std::uint64_t byteMask = 0xFF;

// The first text is the highest byte.
QStringList toBytes(std::int64_t value, int count, int base, int digits)
{
    QStringList bytes;
    for (auto rest = static_cast<std::uint64_t>(value); bytes.size() < count; rest >>= bitsPerByte)
        bytes.prepend(QStringLiteral("%1").arg(rest & byteMask, digits, base, QLatin1Char('0')));
    return bytes;
}

std::int64_t fromBytes(const QStringList& bytes, int base)
{
    std::uint64_t value = 0;
    for (const QString& byte : bytes)
        value = value << bitsPerByte | byte.toUInt(nullptr, base);
    return static_cast<std::int64_t>(value);
}

QString toDecimal(std::int64_t value)
{
    return QString::number(qlonglong{value});
}

std::optional<std::int64_t> fromDecimal(const QString& text)
{
    bool fits = false;
    const qlonglong value = text.toLongLong(&fits, decimalBase);
    return fits ? std::int64_t{value} : std::optional<std::int64_t>();
}

QString toHex(std::int64_t value)
{
    return QString::number(static_cast<qulonglong>(value), hexBase).toUpper();
}

std::optional<std::int64_t> fromHex(const QString& text)
{
    return std::int64_t{text.toLongLong(nullptr, hexBase)};
}

QString toIPv4(std::int64_t value)
{
    return toBytes(value, ipBytes, decimalBase, 1).join(QLatin1Char('.'));
}

std::optional<std::int64_t> fromIPv4(const QString& text)
{
    return fromBytes(text.split(QLatin1Char('.')), decimalBase);
}

QString toMac(std::int64_t value)
{
    return toBytes(value, macBytes, hexBase, 2).join(QLatin1Char(':'));
}

std::optional<std::int64_t> fromMac(const QString& text)
{
    static const QRegularExpression separator(QStringLiteral("[:-]"));
    return fromBytes(text.split(separator), hexBase);
}

} // namespace

const IntegerNotation& decimalNotation()
{
    static const IntegerNotation notation{QStringLiteral("-?[0-9]{1,19}"), toDecimal, fromDecimal};
    return notation;
}

const IntegerNotation* notationFor(const FeatureInfo& info)
{
    static const QHash<QString, IntegerNotation> notations{
        {QStringLiteral("HexNumber"), {QStringLiteral("([0-9a-fA-F]){1,8}"), toHex, fromHex}},
        {QStringLiteral("IPV4Address"),
         {QStringLiteral(R"((([01]?[0-9]?[0-9]|2[0-4][0-9]|25[0-5])\.){3})"
                         R"(([01]?[0-9]?[0-9]|2[0-4][0-9]|25[0-5]))"),
          toIPv4, fromIPv4}},
        {QStringLiteral("MACAddress"),
         {QStringLiteral("^([0-9A-Fa-f]{2}[:-]){5}([0-9A-Fa-f]{2})$"), toMac, fromMac}},
    };
    const auto found = notations.constFind(QString::fromStdString(info.representation));
    return found == notations.constEnd() ? nullptr : &*found;
}

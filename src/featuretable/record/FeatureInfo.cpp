#include "featuretable/record/FeatureInfo.h"

#include "features/NumberConversion.h"

#include <cmath>
#include <tuple>

namespace {

auto membersOf(const FeatureInfo& info)
{
    return std::tie(info.value, info.writable, info.minimum, info.maximum, info.increment,
                    info.cameraMinimum, info.cameraMaximum, info.enumEntries, info.information,
                    info.isKnown, info.isRaw, info.isCommand, info.name, info.displayName,
                    info.description, info.toolTip, info.representation, info.unit);
}

} // namespace

bool operator==(const FeatureInfo& left, const FeatureInfo& right)
{
    return membersOf(left) == membersOf(right);
}

bool matchesFilter(const FeatureInfo& info, const QString& filter)
{
    const QString wanted = filter.trimmed();
    const auto contains = [&wanted](const std::string& text) {
        return QString::fromStdString(text).contains(wanted, Qt::CaseInsensitive);
    };
    return contains(info.name) || contains(info.displayName) || contains(info.description);
}

const FeatureInfo* recordIn(const QVariant& data)
{
    return data.userType() == qMetaTypeId<FeatureInfo>()
        ? static_cast<const FeatureInfo*>(data.constData())
        : nullptr;
}

QVariant toVariant(const FeatureValue& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        return QString::fromStdString(*text);
    if (const auto* integer = std::get_if<std::int64_t>(&value))
        return QVariant::fromValue<qint64>(*integer);
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    return std::get<bool>(value);
}

FeatureValue toFeatureValue(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
    case QMetaType::LongLong:
        return std::int64_t{value.toLongLong()};
    case QMetaType::Double:
        return value.toDouble();
    default:
        return value.toString().toStdString();
    }
}

bool isSameValue(const QVariant& left, const QVariant& right)
{
    if (left.type() == QVariant::Double && right.type() == QVariant::Double)
        return left.toDouble() == right.toDouble();
    return left == right;
}

std::optional<double> toNumber(const std::optional<FeatureValue>& value)
{
    if (!value || std::holds_alternative<std::string>(*value))
        return {};
    const double number = toVariant(*value).toDouble();
    return std::isnan(number) ? std::optional<double>() : number;
}

std::optional<std::int64_t> toInteger(const std::optional<FeatureValue>& value)
{
    if (value && std::holds_alternative<std::int64_t>(*value))
        return std::get<std::int64_t>(*value);
    const auto number = toNumber(value);
    return number ? toInt64(*number) : std::optional<std::int64_t>();
}

#include "featuretable/record/CellText.h"

#include "featuretable/record/DoubleText.h"
#include "featuretable/record/IntegerNotation.h"

#include <QCoreApplication>

namespace {

bool isNumeric(const QVariant& value)
{
    return value.type() == QVariant::LongLong || value.type() == QVariant::Double;
}

} // namespace

QString cellText(const FeatureInfo& info, const QVariant& value)
{
    if (info.isRaw)
        return {};
    if (info.isCommand)
        return QCoreApplication::translate("CommandEditor", "Execute");
    if (value.type() == QVariant::Double)
        return DoubleText::fromNumber(value.toDouble());
    if (value.type() == QVariant::LongLong) {
        const IntegerNotation* notation = notationFor(info);
        return (notation ? *notation : decimalNotation()).toText(value.toLongLong());
    }
    return value.toString();
}

QString accessibleCellText(const FeatureInfo& info, const QVariant& value)
{
    QString text = cellText(info, value);
    if (isNumeric(value) && !info.unit.empty())
        text += QLatin1Char(' ') + QString::fromStdString(info.unit);
    return QStringLiteral("%1: %2").arg(QString::fromStdString(info.displayName), text);
}

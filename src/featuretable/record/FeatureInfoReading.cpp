#include "featuretable/record/FeatureInfoReading.h"

#include "features/FeatureManager.h"
#include "features/SdkValues.h"

namespace {

void readInteger(FeatureManager& manager, const QString& name, FeatureInfo& info)
{
    const IntegerState state = manager.GetIntegerState(name, info.writable);
    info.value = state.value;
    info.increment = state.increment;
    info.minimum = state.minimum;
    info.maximum = state.maximum;
}

void readNumber(FeatureManager& manager, const QString& name, FeatureInfo& info)
{
    double minimum = -1.0;
    double maximum = -1.0;
    double increment = -1.0;
    info.value = manager.GetValueState(name, info.writable, minimum, maximum, increment);
    info.increment = increment;
    info.minimum = minimum;
    info.maximum = maximum;
}

void readEnumeration(FeatureManager& manager, const QString& name, FeatureInfo& info)
{
    for (const QString& entry : manager.GetEnumEntries(name))
        info.enumEntries.emplace_back(entry.toStdString());
    info.value = manager.GetStringValue(name).toStdString();
    info.writable = manager.IsWritable(name);
}

void readValue(FeatureManager& manager, const QString& name, FeatureInfo& info)
{
    const ZebFeatureDataType type = manager.GetDataType(name);
    switch (type) {
    case Sdk::integerType:
        readInteger(manager, name, info);
        break;
    case Sdk::enumerationType:
        readEnumeration(manager, name, info);
        break;
    case Sdk::stringType:
        info.value = manager.GetStringValue(name).toStdString();
        info.writable = manager.IsWritable(name);
        break;
    case Sdk::booleanType:
        info.value = manager.GetValue(name) != 0.0;
        info.writable = manager.IsWritable(name);
        break;
    case Sdk::commandType:
        info.isCommand = true;
        info.writable = manager.IsWritable(name);
        break;
    default:
        info.isRaw = type != Sdk::floatType;
        readNumber(manager, name, info);
    }
}

bool isNumber(const FeatureInfo& info)
{
    return info.minimum.has_value();
}

bool hasSameRange(const FeatureInfo& left, const FeatureInfo& right)
{
    return left.minimum == right.minimum && left.maximum == right.maximum
        && left.increment == right.increment;
}

} // namespace

FeatureInfo readFeatureInfo(FeatureManager& manager, const QString& name)
{
    FeatureInfo info;
    info.name = name.toStdString();
    info.displayName = manager.GetDisplayName(name).toStdString();
    if (info.displayName.empty())
        info.displayName = info.name;
    info.representation = manager.GetRepresentation(name).toStdString();
    info.toolTip = manager.GetToolTip(name).toStdString();
    info.description = manager.GetDescription(name).toStdString();
    info.information = manager.GetInformation(name).toStdString();
    readValue(manager, name, info);
    if (isNumber(info))
        info.unit = manager.GetUnit(name).toStdString();
    return info;
}

FeatureInfo rereadFeatureInfo(FeatureManager& manager, const FeatureInfo& known)
{
    // Only the texts are kept: a camera that did not tell the type once must not leave its mark.
    FeatureInfo info;
    info.name = known.name;
    info.displayName = known.displayName;
    info.representation = known.representation;
    info.toolTip = known.toolTip;
    info.description = known.description;
    info.information = known.information;
    info.unit = known.unit;
    const QString name = QString::fromStdString(known.name);
    readValue(manager, name, info);
    // The rich text tells the range.
    if (!hasSameRange(info, known))
        info.information = manager.GetInformation(name).toStdString();
    return info;
}

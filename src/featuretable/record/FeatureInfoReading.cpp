#include "featuretable/record/FeatureInfoReading.h"

#include "features/FeatureInformation.h"
#include "features/FeatureManager.h"

#include <tuple>

namespace {

FeatureValue toValue(const QString& text)
{
    return text.toStdString();
}

template <typename Type> FeatureValue toValue(Type value)
{
    return value;
}

/// What a complete reading does not tell, the camera does not have.
template <typename Type> bool take(const Reading<Type>& reading, FeatureInfo& info)
{
    const auto takeBound = [&reading](auto& bound, const std::optional<Type>& told) {
        if (told)
            bound = toValue(*told);
        else if (reading.isComplete)
            bound.reset();
    };
    takeBound(info.cameraMinimum, reading.minimum);
    takeBound(info.cameraMaximum, reading.maximum);
    takeBound(info.increment, reading.increment);
    if (reading.value || !info.isKnown)
        info.value = toValue(reading.value.value_or(Type()));
    info.isKnown = info.isKnown || reading.value;
    info.writable = reading.isWritable.value_or(info.writable);
    return reading.isComplete;
}

bool readValue(FeatureReader& feature, FeatureInfo& info)
{
    const ZebFeatureDataType type = feature.dataType();
    if (type == Sdk::unknownType && !feature.read<double>().isComplete)
        return false;
    info.isRaw = false;
    switch (type) {
    case Sdk::integerType:
        return take(feature.read<std::int64_t>(), info);
    case Sdk::floatType:
        return take(feature.read<double>(), info);
    case Sdk::booleanType:
        return take(feature.read<bool>(), info);
    case Sdk::enumerationType:
    case Sdk::stringType:
        return take(feature.read<QString>(), info);
    case Sdk::commandType:
        info.isCommand = true;
        break;
    default:
        info.isRaw = true;
        info.value = -1.0;
    }
    info.isKnown = true;
    const auto isWritable = feature.flag(FeatureReader::Access);
    info.writable = isWritable.value_or(info.writable && feature);
    return isWritable || !feature;
}

/// From the SDK's memory. What fails is empty.
void readTexts(FeatureReader& feature, FeatureInfo& info)
{
    const auto read = [&feature](std::string& known, FeatureReader::TextGetter getter) {
        if (const QString told = feature.text(getter); !told.isEmpty())
            known = told.toStdString();
    };
    read(info.displayName, &ZebFeatureWrapper::GetDisplayName);
    read(info.representation, &ZebFeatureWrapper::GetRepresentation);
    read(info.toolTip, &ZebFeatureWrapper::GetToolTip);
    read(info.description, &ZebFeatureWrapper::GetDescription);
    const ZebFeatureDataType type = feature.dataType();
    if (type == Sdk::integerType || type == Sdk::floatType)
        read(info.unit, &ZebFeatureWrapper::GetUnit);
    if (type != Sdk::enumerationType)
        return;
    if (const QStringList entries = feature.entries(); !entries.isEmpty()) {
        info.enumEntries.clear();
        for (const QString& entry : entries)
            info.enumEntries.emplace_back(entry.toStdString());
    }
}

} // namespace

bool readFeatureInfo(FeatureManager& manager, FeatureInfo& info)
{
    const FeatureInfo before = info;
    const auto memory = manager.link()->memory();
    FeatureReader feature = manager.Read(QString::fromStdString(info.name));
    const bool isWhole = readValue(feature, info);
    if (feature && !manager.link()->isDoubtful()) {
        readTexts(feature, info);
        const auto toldIn = [](const FeatureInfo& record) {
            return std::tie(record.description, record.cameraMinimum, record.cameraMaximum,
                            record.increment);
        };
        if (info.information.empty() || toldIn(info) != toldIn(before))
            info.information = featureInformation(feature).toStdString();
    }
    if (info.displayName.empty())
        info.displayName = info.name;
    info.minimum = info.cameraMinimum;
    info.maximum = info.cameraMaximum;
    return isWhole;
}

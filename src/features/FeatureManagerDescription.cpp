// What the camera tells of its features beside their values.

#include "features/FeatureManager.h"

#include "features/FeatureInformation.h"
#include "features/FeatureReading.h"
#include "features/SdkValues.h"

#include <QDebug>

using FeatureReading::readText;

QString FeatureManager::GetDisplayName(const QString& name)
{
    return GetDisplayName(name, {});
}

QString FeatureManager::GetDisplayName(const QString& name, const QString& alternative)
{
    return GetDisplayName(name, alternative, {});
}

QString FeatureManager::GetDisplayName(const QString& name, const QString& alternative1,
                                       const QString& alternative2)
{
    const auto feature = find(name, alternative1, alternative2);
    return feature ? readText(*feature, &ZebFeatureWrapper::GetDisplayName) : QString();
}

QString FeatureManager::GetDisplayName(const QStringList& candidates)
{
    const auto feature = findFirst(candidates);
    return feature ? readText(*feature, &ZebFeatureWrapper::GetDisplayName) : QString();
}

QStringList FeatureManager::GetEnumEntries(const QString& name)
{
    return GetEnumEntries(name, {});
}

QStringList FeatureManager::GetEnumEntries(const QString& name, const QString& alternative)
{
    const auto feature = find(name, alternative);
    std::vector<std::string> values;
    if (!feature || feature->GetValues(values) != Sdk::success)
        return {};
    QStringList entries;
    for (const std::string& value : values)
        entries.append(QString::fromStdString(value));
    return entries;
}

bool FeatureManager::IsFloatFeature(const QString& name)
{
    return IsFloatFeature(name, QString());
}

bool FeatureManager::IsFloatFeature(const QString& name, const QString& alternative)
{
    return IsFloatFeature(name, alternative, {});
}

bool FeatureManager::IsFloatFeature(const QString& name, const QString& alternative1,
                                    const QString& alternative2)
{
    const auto feature = find(name, alternative1, alternative2);
    return feature && FeatureReading::readDataType(*feature) == Sdk::floatType;
}

QString FeatureManager::GetCategory(const QString& name)
{
    const auto feature = find(name);
    return feature ? readText(*feature, &ZebFeatureWrapper::GetCategory) : QString();
}

bool FeatureManager::IsValueAvailable(const QString& name, const QString& value)
{
    const auto feature = find(name);
    bool available = false;
    return feature
        && feature->IsValueAvailable(value.toStdString().c_str(), available) == Sdk::success
        && available;
}

QStringList FeatureManager::GetSelectedFeatureNames(const QString& name)
{
    const auto selector = find(name);
    std::vector<ZebCPP::FeaturePtr> selected;
    if (!selector || selector->GetSelectedFeatures(selected) != Sdk::success)
        return {};
    QStringList names;
    for (const ZebCPP::FeaturePtr& feature : selected) {
        std::string selectedName;
        if (ZebFeatureWrapper(feature).GetName(selectedName) == Sdk::success)
            names.append(QString::fromStdString(selectedName));
    }
    return names;
}

ZebFeatureDataType FeatureManager::GetDataType(const QString& name)
{
    const auto feature = find(name);
    if (!feature) {
        qDebug() << "Error: FeatureManager::GetDataType() - cannot get ZebFeatureWrapperPtr for "
                 << name;
        return Sdk::unknownType;
    }
    return FeatureReading::readDataType(*feature);
}

QString FeatureManager::GetRepresentation(const QString& name)
{
    const auto feature = find(name);
    if (!feature) {
        qDebug()
            << "Error: FeatureManager::GetRepresentation() - cannot get ZebFeatureWrapperPtr for "
            << name;
        return {};
    }
    std::string representation;
    if (feature->GetRepresentation(representation) != Sdk::success) {
        qDebug() << "Error: FeatureManager::GetRepresentation() cannot get representaion for "
                 << name;
        return {};
    }
    return QString::fromStdString(representation);
}

QString FeatureManager::GetInformation(const QString& name)
{
    const auto feature = find(name);
    if (!feature) {
        qDebug() << "Error: FeatureManager::GetInformation() - cannot get ZebFeatureWrapperPtr for "
                 << name;
        return {};
    }
    return featureInformation(*feature);
}

QString FeatureManager::GetUnit(const QString& name)
{
    const auto feature = find(name);
    return feature ? readText(*feature, &ZebFeatureWrapper::GetUnit) : QString();
}

QString FeatureManager::GetToolTip(const QString& name)
{
    const auto feature = find(name);
    return feature ? readText(*feature, &ZebFeatureWrapper::GetToolTip) : QString();
}

QString FeatureManager::GetDescription(const QString& name)
{
    const auto feature = find(name);
    return feature ? readText(*feature, &ZebFeatureWrapper::GetDescription) : QString();
}

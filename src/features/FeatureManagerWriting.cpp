// What changes the camera.

#include "features/FeatureManager.h"

#include "features/FeatureWriting.h"
#include "features/SdkValues.h"

QString FeatureManager::SetStringValue(const QString& name, const QString& value)
{
    return SetStringValue(name, {}, value);
}

QString FeatureManager::SetStringValue(const QString& name, const QString& alternative,
                                       const QString& value)
{
    return SetStringValue(name, alternative, {}, value);
}

QString FeatureManager::SetStringValue(const QString& name, const QString& alternative1,
                                       const QString& alternative2, const QString& value)
{
    const auto feature = find(name, alternative1, alternative2);
    if (!feature)
        return {};
    FeatureWriting::writeText(*feature, value);
    return GetStringValue(name);
}

double FeatureManager::SetValue(const QString& name, double value)
{
    return SetValue(name, {}, value);
}

double FeatureManager::SetValue(const QString& name, const QString& alternative, double value)
{
    return SetValue(name, alternative, {}, value);
}

double FeatureManager::SetValue(const QString& name, const QString& alternative1,
                                const QString& alternative2, double value)
{
    const auto feature = find(name, alternative1, alternative2);
    return feature ? FeatureWriting::writeNumber(*feature, name, value).value : value;
}

bool FeatureManager::RunCommand(const QString& name)
{
    const auto feature = find(name);
    return feature && feature->RunCommand() == Sdk::success;
}

bool FeatureManager::SetVariantValue(const QString& name, const QVariant& value)
{
    const auto feature = find(name);
    return feature && FeatureWriting::writeVariant(*feature, name, value);
}

#include "FeatureManager.h"

#include "features/FeatureInformation.h"
#include "features/FeatureReading.h"
#include "features/FeatureWriting.h"
#include "features/SdkValues.h"

#include <QDebug>

#include <algorithm>

using FeatureReading::missingNumber;
using FeatureReading::NumberState;
using FeatureReading::readFlag;
using FeatureReading::readText;

namespace {

constexpr std::size_t usualNameLength = 63; ///< longer names cost an allocation

/// From the end, byte by byte: a camera's names begin alike, and wider reads of what was just
/// written would wait for it.
bool isSameName(const std::string& name, const std::string& other)
{
    return name.size() == other.size() && std::equal(name.rbegin(), name.rend(), other.rbegin());
}

} // namespace

FeatureManager::FeatureManager(const Wrappers& features)
    : m_features(features)
{
}

FeatureManager::~FeatureManager() = default;

ZebFeatureWrapperPtr FeatureManager::find(const QString& name) const
{
    if (!m_features)
        return {};
    const std::string wanted = name.toStdString();
    // The list may be changed by whoever shares it while a camera answers slowly.
    const QVector<ZebFeatureWrapperPtr> features = *m_features;
    std::string candidate;
    candidate.reserve(usualNameLength);
    for (const ZebFeatureWrapperPtr& feature : features) {
        if (feature && feature->GetName(candidate) == Sdk::success && isSameName(candidate, wanted))
            return feature;
    }
    return {};
}

ZebFeatureWrapperPtr FeatureManager::find(const QString& name, const QString& alternative1,
                                          const QString& alternative2) const
{
    ZebFeatureWrapperPtr feature = find(name);
    if (!feature && !alternative1.isEmpty())
        feature = find(alternative1);
    if (!feature && !alternative2.isEmpty())
        feature = find(alternative2);
    return feature;
}

ZebFeatureWrapperPtr FeatureManager::findFirst(const QStringList& candidates) const
{
    for (const QString& candidate : candidates) {
        if (ZebFeatureWrapperPtr feature = find(candidate))
            return feature;
    }
    return {};
}

double FeatureManager::GetValue(const QString& name)
{
    return GetValue(name, {});
}

double FeatureManager::GetValue(const QString& name, const QString& alternative)
{
    return GetValue(name, alternative, {});
}

double FeatureManager::GetValue(const QString& name, const QString& alternative1,
                                const QString& alternative2)
{
    const auto feature = find(name, alternative1, alternative2);
    return feature ? FeatureReading::readNumber(*feature) : missingNumber;
}

QString FeatureManager::GetStringValue(const QString& name)
{
    return GetStringValue(name, {});
}

QString FeatureManager::GetStringValue(const QString& name, const QString& alternative)
{
    const auto feature = find(name, alternative);
    return feature ? readText(*feature, &ZebFeatureWrapper::GetValue) : QString();
}

bool FeatureManager::IsWritable(const QString& name)
{
    return IsWritable(name, {});
}

bool FeatureManager::IsWritable(const QString& name, const QString& alternative)
{
    return IsWritable(name, alternative, {});
}

bool FeatureManager::IsWritable(const QString& name, const QString& alternative1,
                                const QString& alternative2)
{
    const auto feature = find(name, alternative1, alternative2);
    return feature && FeatureReading::isWritable(*feature);
}

bool FeatureManager::IsReadable(const QString& name)
{
    const auto feature = find(name);
    return feature && readFlag(*feature, &ZebFeatureWrapper::IsReadable);
}

double FeatureManager::GetIncrement(const QString& name)
{
    return GetIncrement(name, {});
}

double FeatureManager::GetIncrement(const QString& name, const QString& alternative)
{
    const auto feature = find(name, alternative);
    return feature ? FeatureReading::readIncrementAsNumber(*feature) : missingNumber;
}

QString FeatureManager::GetExistingName(const QStringList& candidates)
{
    const auto feature = findFirst(candidates);
    return feature ? readText(*feature, &ZebFeatureWrapper::GetName) : QString();
}

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

double FeatureManager::GetValueState(const QString& name, bool& writable, double& minimum,
                                     double& maximum, double& increment)
{
    return GetValueState(name, {}, writable, minimum, maximum, increment);
}

double FeatureManager::GetValueState(const QString& name, const QString& alternative,
                                     bool& writable, double& minimum, double& maximum,
                                     double& increment)
{
    return GetValueState(name, alternative, {}, writable, minimum, maximum, increment);
}

double FeatureManager::GetValueState(const QString& name, const QString& alternative1,
                                     const QString& alternative2, bool& writable, double& minimum,
                                     double& maximum, double& increment)
{
    const auto feature = find(name, alternative1, alternative2);
    if (!feature)
        return missingNumber;
    writable = FeatureReading::isWritable(*feature);
    const NumberState state = FeatureReading::readState(*feature);
    minimum = state.minimum;
    maximum = state.maximum;
    increment = state.increment;
    return state.value;
}

double FeatureManager::GetValueRange(const QString& name, double& minimum, double& maximum,
                                     double& increment)
{
    return GetValueRange(name, {}, minimum, maximum, increment);
}

double FeatureManager::GetValueRange(const QString& name, const QString& alternative,
                                     double& minimum, double& maximum, double& increment)
{
    return GetValueRange(name, alternative, {}, minimum, maximum, increment);
}

double FeatureManager::GetValueRange(const QString& name, const QString& alternative1,
                                     const QString& alternative2, double& minimum, double& maximum,
                                     double& increment)
{
    const auto feature = find(name, alternative1, alternative2);
    if (!feature)
        return missingNumber;
    const NumberState state = FeatureReading::readFieldState(*feature);
    minimum = state.minimum;
    maximum = state.maximum;
    increment = state.increment;
    return state.value;
}

double FeatureManager::GetValueLimits(const QString& name, double& minimum, double& maximum)
{
    return GetValueLimits(name, {}, minimum, maximum);
}

double FeatureManager::GetValueLimits(const QString& name, const QString& alternative,
                                      double& minimum, double& maximum)
{
    return GetValueLimits(name, alternative, {}, minimum, maximum);
}

double FeatureManager::GetValueLimits(const QString& name, const QString& alternative1,
                                      const QString& alternative2, double& minimum, double& maximum)
{
    const auto feature = find(name, alternative1, alternative2);
    if (!feature)
        return missingNumber;
    const NumberState state = FeatureReading::readLimits(*feature);
    minimum = state.minimum;
    maximum = state.maximum;
    return state.value;
}

QString FeatureManager::GetWritableStringValue(const QString& name)
{
    const auto feature = find(name);
    if (!feature || !FeatureReading::isWritable(*feature))
        return {};
    return readText(*feature, &ZebFeatureWrapper::GetValue);
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

bool FeatureManager::HasFeature(const QString& name, const QString& alternative1,
                                const QString& alternative2)
{
    return find(name, alternative1, alternative2) != nullptr;
}

bool FeatureManager::HasFeature(const QString& name, const QString& alternative)
{
    return HasFeature(name, alternative, {});
}

bool FeatureManager::HasFeature(const QString& name)
{
    return HasFeature(name, QString());
}

bool FeatureManager::IsFeatureWritable(const QString& name, const QString& alternative1,
                                       const QString& alternative2)
{
    const auto feature = find(name, alternative1, alternative2);
    return feature && FeatureReading::isWritable(*feature);
}

bool FeatureManager::IsFeatureWritable(const QString& name, const QString& alternative)
{
    return IsFeatureWritable(name, alternative, {});
}

bool FeatureManager::IsFeatureWritable(const QString& name)
{
    return IsFeatureWritable(name, QString());
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

QStringList FeatureManager::GetFeatureNames()
{
    if (!m_features)
        return {};
    QStringList names;
    const QVector<ZebFeatureWrapperPtr> features = *m_features;
    for (const ZebFeatureWrapperPtr& feature : features) {
        std::string name;
        if (feature && feature->GetName(name) == Sdk::success)
            names.append(QString::fromStdString(name));
    }
    return names;
}

bool FeatureManager::SetVariantValue(const QString& name, const QVariant& value)
{
    const auto feature = find(name);
    return feature && FeatureWriting::writeVariant(*feature, name, value);
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

IntegerState FeatureManager::GetIntegerState(const QString& name, bool& writable)
{
    const auto feature = find(name);
    if (!feature)
        return {};
    writable = FeatureReading::isWritable(*feature);
    return FeatureReading::readIntegerState(*feature);
}

#include "features/FeatureManager.h"

#include "features/FeatureReading.h"
#include "features/SdkValues.h"

#include <utility>

using FeatureReading::missingNumber;
using FeatureReading::NumberState;
using FeatureReading::readFlag;
using FeatureReading::readText;

namespace {

constexpr std::size_t usualNameLength = 63; ///< longer names cost an allocation

} // namespace

FeatureManager::FeatureManager(const Wrappers& features, std::shared_ptr<CameraLink> link)
    : m_features(features)
    , m_link(std::move(link))
{
}

FeatureManager::~FeatureManager() = default;

ZebFeatureWrapperPtr FeatureManager::lookUp(const QString& name, bool& isKnown) const
{
    isKnown = !m_link->isClosed();
    if (!m_features || !isKnown)
        return {};
    const std::string wanted = name.toStdString();
    // The list may be changed by whoever shares it while a camera answers slowly.
    const QVector<ZebFeatureWrapperPtr> features = *m_features;
    std::string candidate;
    candidate.reserve(usualNameLength);
    // A camera that is in doubt already gets one chance.
    bool hasFailed = m_link->isDoubtful();
    auto begin = CameraLink::Clock::now();
    for (const ZebFeatureWrapperPtr& feature : features) {
        if (!feature)
            continue;
        const ZebErrorType result = feature->GetName(candidate);
        if (result == Sdk::success) {
            if (candidate == wanted)
                return feature;
            hasFailed = false;
            continue;
        }
        const auto duration = CameraLink::since(std::exchange(begin, CameraLink::Clock::now()));
        if (!CameraLink::isSlow(duration))
            continue;
        if (std::exchange(hasFailed, true)) {
            m_link->told(name, result, duration);
            isKnown = false;
            return {};
        }
    }
    return {};
}

FeatureReader FeatureManager::Read(const QString& name, const QString& alternative1,
                                   const QString& alternative2)
{
    bool isKnown = true;
    ZebFeatureWrapperPtr feature = lookUp(name, isKnown);
    for (const QString& alternative : {alternative1, alternative2}) {
        if (!feature && isKnown && !alternative.isEmpty())
            feature = lookUp(alternative, isKnown);
    }
    return {feature, name, m_link, isKnown};
}

ZebFeatureWrapperPtr FeatureManager::Find(const QString& name, const QString& alternative1,
                                          const QString& alternative2)
{
    return Read(name, alternative1, alternative2).feature();
}

ZebFeatureWrapperPtr FeatureManager::find(const QString& name) const
{
    bool isKnown = true;
    return lookUp(name, isKnown);
}

ZebFeatureWrapperPtr FeatureManager::find(const QString& name, const QString& alternative1,
                                          const QString& alternative2) const
{
    return const_cast<FeatureManager*>(this)->Find(name, alternative1, alternative2);
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

IntegerState FeatureManager::GetIntegerState(const QString& name, bool& writable)
{
    const auto feature = find(name);
    if (!feature)
        return {};
    writable = FeatureReading::isWritable(*feature);
    return FeatureReading::readIntegerState(*feature);
}

#include "features/FeatureManager.h"

#include "features/FeatureInformation.h"
#include "features/FeatureWriting.h"

#include <QDebug>

#include <algorithm>
#include <set>
#include <utility>

namespace {

constexpr std::size_t usualNameLength = 63; ///< longer names cost an allocation
constexpr double missingNumber = -1.0;
constexpr int valueAndLimits
    = FeatureReader::Value | FeatureReader::Range | FeatureReader::Increment;

double untold(FeatureReader& reader)
{
    return reader.dataType() == Sdk::booleanType ? 0.0 : missingNumber;
}

/// Of integers and floats.
Reading<double> limitedNumber(FeatureReader reader, int parts)
{
    return reader.dataType() == Sdk::booleanType ? Reading<double>() : reader.number(parts);
}

/// Logs when there is none.
FeatureReader readOrLog(const FeatureManager& manager, const char* operation, const QString& name)
{
    FeatureReader feature = manager.Read(name);
    const QByteArray caller = QByteArray("Error: FeatureManager::") + operation;
    if (!feature)
        qDebug() << (caller + "() - cannot get ZebFeatureWrapperPtr for ").constData() << name;
    return feature;
}

double answer(const Reading<double>& reading, double& minimum, double& maximum)
{
    minimum = reading.minimum.value_or(missingNumber);
    maximum = reading.maximum.value_or(missingNumber);
    return reading.value.value_or(missingNumber);
}

double answer(const Reading<double>& reading, double& minimum, double& maximum, double& increment)
{
    increment = reading.increment.value_or(missingNumber);
    return answer(reading, minimum, maximum);
}

} // namespace

FeatureManager::FeatureManager(const Wrappers& features, std::shared_ptr<CameraLink> link)
    : m_features(features)
    , m_link(std::move(link))
{
}

FeatureManager::~FeatureManager() = default;

FeatureManager::Wrappers FeatureManager::wrap(const QVector<ZebCPP::FeaturePtr>& features)
{
    auto wrappers = Wrappers::create();
    wrappers->reserve(features.size());
    for (const ZebCPP::FeaturePtr& feature : features)
        wrappers->append(std::make_shared<ZebFeatureWrapper>(feature));
    return wrappers;
}

template <typename Visit> bool FeatureManager::walk(const QString& what, Visit&& visit) const
{
    if (m_link->isClosed())
        return false;
    if (!m_features)
        return true;
    // The list may be changed by whoever shares it while a camera answers slowly.
    const QVector<ZebFeatureWrapperPtr> features = *m_features;
    std::string name;
    name.reserve(usualNameLength);
    // Two names in a row that fail slowly are enough; a camera that is in doubt gets one chance.
    bool isDoubtful = m_link->isDoubtful();
    auto begin = CameraLink::Clock::now();
    for (const ZebFeatureWrapperPtr& feature : features) {
        if (!feature)
            continue;
        const ZebErrorType result = feature->GetName(name);
        if (result == Sdk::success) {
            if (visit(feature, name))
                return true;
            isDoubtful = false;
            continue;
        }
        const auto duration = CameraLink::since(std::exchange(begin, CameraLink::Clock::now()));
        if (CameraLink::isSlow(duration) && std::exchange(isDoubtful, true)) {
            m_link->told(what, result, duration);
            return false;
        }
    }
    return true;
}

FeatureReader FeatureManager::readFirst(const QStringList& candidates) const
{
    std::vector<std::string> wanted;
    for (const QString& candidate : candidates)
        wanted.push_back(candidate.toStdString());
    ZebFeatureWrapperPtr found;
    auto end = wanted.end(); // the first of those that are no longer wanted
    const auto take = [&](const ZebFeatureWrapperPtr& feature, const std::string& name) {
        const auto candidate = std::find(wanted.begin(), end, name);
        if (candidate != end) {
            found = feature;
            end = candidate;
        }
        return end == wanted.begin();
    };
    if (!walk(candidates.value(0), take))
        return {nullptr, {}, m_link, false};
    return {found, candidates.value(static_cast<int>(end - wanted.begin())), m_link};
}

FeatureReader FeatureManager::Read(const QString& name, const QString& alternative1,
                                   const QString& alternative2) const
{
    QStringList candidates{name};
    for (const QString* alternative : {&alternative1, &alternative2}) {
        if (!alternative->isEmpty())
            candidates.append(*alternative);
    }
    return readFirst(candidates);
}

QVector<FeatureReader> FeatureManager::FindAll(const QStringList& names) const
{
    if (names.isEmpty())
        return {};
    std::set<std::string> wanted;
    for (const QString& name : names)
        wanted.insert(name.toStdString());
    QVector<FeatureReader> found;
    walk(QStringLiteral("all"), [&](const ZebFeatureWrapperPtr& feature, const std::string& name) {
        if (wanted.count(name) > 0)
            found.append({feature, QString::fromStdString(name), m_link});
        return false;
    });
    return found;
}

double FeatureManager::GetValue(const QString& name, const QString& alternative1,
                                const QString& alternative2)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    return reader.value().value_or(untold(reader));
}

double FeatureManager::GetIncrement(const QString& name, const QString& alternative)
{
    const auto reading = limitedNumber(Read(name, alternative), FeatureReader::Increment);
    return reading.increment.value_or(missingNumber);
}

double FeatureManager::GetValueState(const QString& name, const QString& alternative1,
                                     const QString& alternative2, bool& writable, double& minimum,
                                     double& maximum, double& increment)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    if (!reader)
        return missingNumber;
    writable = reader.isWritable();
    return answer(limitedNumber(reader, valueAndLimits), minimum, maximum, increment);
}

double FeatureManager::GetValueRange(const QString& name, const QString& alternative1,
                                     const QString& alternative2, double& minimum, double& maximum,
                                     double& increment)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    return reader ? answer(reader.fieldNumber(valueAndLimits), minimum, maximum, increment)
                  : missingNumber;
}

double FeatureManager::GetValueLimits(const QString& name, const QString& alternative1,
                                      const QString& alternative2, double& minimum, double& maximum)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    constexpr int parts = FeatureReader::Value | FeatureReader::Range;
    return reader ? answer(limitedNumber(reader, parts), minimum, maximum) : missingNumber;
}

QString FeatureManager::GetWritableStringValue(const QString& name)
{
    FeatureReader reader = Read(name);
    return reader.isWritable() ? reader.textValue().value_or(QString()) : QString();
}

QString FeatureManager::SetStringValue(const QString& name, const QString& alternative1,
                                       const QString& alternative2, const QString& value)
{
    FeatureReader feature = Read(name, alternative1, alternative2);
    if (!feature)
        return {};
    feature.write(value.toStdString().c_str());
    return GetStringValue(name);
}

double FeatureManager::SetValue(const QString& name, const QString& alternative1,
                                const QString& alternative2, double value)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    const ZebFeatureDataType type = reader.dataType();
    if (type != Sdk::integerType && type != Sdk::floatType && type != Sdk::booleanType)
        return value;
    FeatureWriting::writeNumber(reader, name, value);
    return reader.value().value_or(untold(reader));
}

bool FeatureManager::RunCommand(const QString& name)
{
    FeatureReader feature = Read(name);
    return feature && feature.run() == Sdk::success;
}

bool FeatureManager::IsValueAvailable(const QString& name, const QString& value)
{
    const FeatureReader feature = Read(name);
    bool available = false;
    return feature
        && feature->IsValueAvailable(value.toStdString().c_str(), available) == Sdk::success
        && available;
}

QStringList FeatureManager::GetSelectedFeatureNames(const QString& name)
{
    const FeatureReader selector = Read(name);
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
    return readOrLog(*this, "GetDataType", name).dataType();
}

QString FeatureManager::GetRepresentation(const QString& name)
{
    const FeatureReader feature = readOrLog(*this, "GetRepresentation", name);
    std::string representation;
    if (feature && feature->GetRepresentation(representation) != Sdk::success)
        qDebug() << "Error: FeatureManager::GetRepresentation() cannot get representaion for "
                 << name;
    return QString::fromStdString(representation);
}

QString FeatureManager::GetInformation(const QString& name)
{
    FeatureReader feature = readOrLog(*this, "GetInformation", name);
    return feature ? featureInformation(feature) : QString();
}

QStringList FeatureManager::GetFeatureNames()
{
    QStringList names;
    walk(QStringLiteral("all"), [&](const ZebFeatureWrapperPtr&, const std::string& name) {
        names.append(QString::fromStdString(name));
        return false;
    });
    return names;
}

bool FeatureManager::SetVariantValue(const QString& name, const QVariant& value)
{
    FeatureReader reader = Read(name);
    return FeatureWriting::writeVariant(reader, name, value);
}

#include "features/FeatureManager.h"

#include "features/FeatureInformation.h"
#include "features/FeatureWriting.h"
#include "features/SdkValues.h"

#include <QDebug>

#include <utility>

namespace {

constexpr std::size_t usualNameLength = 63; ///< longer names cost an allocation
constexpr double missingNumber = -1.0;

double untold(FeatureReader& reader)
{
    return reader.dataType() == Sdk::booleanType ? 0.0 : missingNumber;
}

bool isNumber(FeatureReader& reader)
{
    const ZebFeatureDataType type = reader.dataType();
    return type == Sdk::integerType || type == Sdk::floatType;
}

double answer(const Reading<double>& reading, double& minimum, double& maximum)
{
    minimum = reading.minimum.value_or(missingNumber);
    maximum = reading.maximum.value_or(missingNumber);
    return reading.value.value_or(missingNumber);
}

} // namespace

FeatureManager::FeatureManager(const Wrappers& features, std::shared_ptr<CameraLink> link)
    : m_features(features)
    , m_link(std::move(link))
{
}

FeatureManager::~FeatureManager() = default;

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

FeatureReader FeatureManager::read(const QString& name) const
{
    const std::string wanted = name.toStdString();
    ZebFeatureWrapperPtr found;
    const auto take = [&](const ZebFeatureWrapperPtr& feature, const std::string& candidate) {
        if (candidate == wanted)
            found = feature;
        return found != nullptr;
    };
    const bool isKnown = walk(name, take);
    return {found, name, m_link, isKnown};
}

FeatureReader FeatureManager::readFirst(const QStringList& candidates) const
{
    FeatureReader reader(nullptr, {}, m_link, true);
    for (const QString& candidate : candidates) {
        if (!reader && reader.isKnown())
            reader = read(candidate);
    }
    return reader;
}

FeatureReader FeatureManager::Read(const QString& name, const QString& alternative1,
                                   const QString& alternative2)
{
    FeatureReader reader = read(name);
    for (const QString* alternative : {&alternative1, &alternative2}) {
        if (!reader && reader.isKnown() && !alternative->isEmpty())
            reader = read(*alternative);
    }
    return reader;
}

ZebFeatureWrapperPtr FeatureManager::Find(const QString& name, const QString& alternative1,
                                          const QString& alternative2)
{
    return Read(name, alternative1, alternative2).feature();
}

QVector<FeatureManager::Found> FeatureManager::FindAll(const QStringList& names) const
{
    QVector<Found> found;
    walk(QStringLiteral("all"), [&](const ZebFeatureWrapperPtr& feature, const std::string& text) {
        const QString name = QString::fromStdString(text);
        if (names.contains(name))
            found.append({feature, name});
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

QString FeatureManager::GetStringValue(const QString& name, const QString& alternative)
{
    return Read(name, alternative).textValue().value_or(QString());
}

bool FeatureManager::IsWritable(const QString& name, const QString& alternative1,
                                const QString& alternative2)
{
    return Read(name, alternative1, alternative2).isWritable();
}

bool FeatureManager::IsReadable(const QString& name)
{
    return Read(name).flag(&ZebFeatureWrapper::IsReadable).value_or(false);
}

double FeatureManager::GetIncrement(const QString& name, const QString& alternative)
{
    return Read(name, alternative)
        .number(FeatureReader::Increment)
        .increment.value_or(missingNumber);
}

QString FeatureManager::GetExistingName(const QStringList& candidates)
{
    return readFirst(candidates).text(&ZebFeatureWrapper::GetName);
}

QString FeatureManager::GetDisplayName(const QString& name, const QString& alternative1,
                                       const QString& alternative2)
{
    return Read(name, alternative1, alternative2).text(&ZebFeatureWrapper::GetDisplayName);
}

QString FeatureManager::GetDisplayName(const QStringList& candidates)
{
    return readFirst(candidates).text(&ZebFeatureWrapper::GetDisplayName);
}

double FeatureManager::GetValueState(const QString& name, const QString& alternative1,
                                     const QString& alternative2, bool& writable, double& minimum,
                                     double& maximum, double& increment)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    if (!reader)
        return missingNumber;
    Reading<double> reading;
    if (isNumber(reader))
        reading = reader.number();
    writable = isNumber(reader) ? reading.isWritable : reader.isWritable();
    increment = reading.increment.value_or(missingNumber);
    return answer(reading, minimum, maximum);
}

double FeatureManager::GetValueRange(const QString& name, const QString& alternative1,
                                     const QString& alternative2, double& minimum, double& maximum,
                                     double& increment)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    if (!reader)
        return missingNumber;
    constexpr int parts = FeatureReader::Value | FeatureReader::Range | FeatureReader::Increment;
    const Reading<double> reading
        = isNumber(reader) ? reader.fieldNumber(parts) : Reading<double>();
    increment = reading.increment.value_or(missingNumber);
    return answer(reading, minimum, maximum);
}

double FeatureManager::GetValueLimits(const QString& name, const QString& alternative1,
                                      const QString& alternative2, double& minimum, double& maximum)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    if (!reader)
        return missingNumber;
    constexpr int parts = FeatureReader::Value | FeatureReader::Range;
    return answer(isNumber(reader) ? reader.number(parts) : Reading<double>(), minimum, maximum);
}

QString FeatureManager::GetWritableStringValue(const QString& name)
{
    FeatureReader reader = Read(name);
    return reader.isWritable() ? reader.textValue().value_or(QString()) : QString();
}

QStringList FeatureManager::GetEnumEntries(const QString& name, const QString& alternative)
{
    return Read(name, alternative).entries();
}

bool FeatureManager::HasFeature(const QString& name, const QString& alternative1,
                                const QString& alternative2)
{
    return Find(name, alternative1, alternative2) != nullptr;
}

bool FeatureManager::IsFeatureWritable(const QString& name, const QString& alternative1,
                                       const QString& alternative2)
{
    return IsWritable(name, alternative1, alternative2);
}

bool FeatureManager::IsFloatFeature(const QString& name, const QString& alternative1,
                                    const QString& alternative2)
{
    return Read(name, alternative1, alternative2).dataType() == Sdk::floatType;
}

QString FeatureManager::SetStringValue(const QString& name, const QString& alternative1,
                                       const QString& alternative2, const QString& value)
{
    const auto feature = Find(name, alternative1, alternative2);
    if (!feature)
        return {};
    FeatureWriting::writeText(*feature, value);
    return GetStringValue(name);
}

double FeatureManager::SetValue(const QString& name, const QString& alternative1,
                                const QString& alternative2, double value)
{
    FeatureReader reader = Read(name, alternative1, alternative2);
    if (!reader)
        return value;
    return FeatureWriting::writeNumber(reader, name, value).value.value_or(untold(reader));
}

bool FeatureManager::RunCommand(const QString& name)
{
    const auto feature = Find(name);
    return feature && feature->RunCommand() == Sdk::success;
}

QString FeatureManager::GetCategory(const QString& name)
{
    return Read(name).text(&ZebFeatureWrapper::GetCategory);
}

bool FeatureManager::IsValueAvailable(const QString& name, const QString& value)
{
    const auto feature = Find(name);
    bool available = false;
    return feature
        && feature->IsValueAvailable(value.toStdString().c_str(), available) == Sdk::success
        && available;
}

QStringList FeatureManager::GetSelectedFeatureNames(const QString& name)
{
    const auto selector = Find(name);
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
    FeatureReader reader = Read(name);
    if (!reader)
        qDebug() << "Error: FeatureManager::GetDataType() - cannot get ZebFeatureWrapperPtr for "
                 << name;
    return reader.dataType();
}

QString FeatureManager::GetRepresentation(const QString& name)
{
    const auto feature = Find(name);
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
    FeatureReader reader = Read(name);
    if (!reader) {
        qDebug() << "Error: FeatureManager::GetInformation() - cannot get ZebFeatureWrapperPtr for "
                 << name;
        return {};
    }
    return featureInformation(reader);
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
    return reader && FeatureWriting::writeVariant(reader, name, value);
}

#include "Camera.h"

#include "Device.h"
#include "SnapshotReader.h"
#include "State.h"

#include <stdexcept>
#include <utility>

namespace sim {

namespace {

// Other clients, too, write numbers of a type that need not be the feature's.
Value fitting(ZebFeatureDataType type, const Value& value)
{
    const bool isNumber = value.holds<std::int64_t>() || value.holds<double>();
    if (type == ZebFeatureDataInt && isNumber)
        return value.toInteger();
    if (type == ZebFeatureDataFloat && isNumber)
        return value.toNumber();
    if (type == ZebFeatureDataBool && isNumber)
        return value.toBoolean();
    return value;
}

} // namespace

Camera::Camera(FeatureDescriptions descriptions, const CameraOptions& options)
    : m_device(Device::create(std::move(descriptions)))
{
    setRounding(options.rounds);
    setNotifications(options.notifications);
}

Camera::~Camera()
{
    m_device->close();
}

std::vector<ZebCPP::FeaturePtr> Camera::features() const
{
    std::vector<ZebCPP::FeaturePtr> features;
    features.reserve(m_device->size());
    for (std::size_t index = 0; index < m_device->size(); ++index)
        features.push_back(m_device->feature(index));
    return features;
}

std::size_t Camera::indexOf(const std::string& name) const
{
    // Names and their order never change, so this needs no lock.
    const std::size_t index = m_device->store().find(name);
    if (index == FeatureStore::none)
        throw std::out_of_range("no feature " + name);
    return index;
}

bool Camera::has(const std::string& name) const
{
    return m_device->store().find(name) != FeatureStore::none;
}

FeatureProbe Camera::feature(const std::string& name) const
{
    return FeatureProbe(m_device, indexOf(name));
}

Snapshot Camera::snapshot() const
{
    const std::lock_guard lock(m_device->mutex());
    return readSnapshot(State(m_device->store(), FeatureStore::none));
}

bool Camera::isStreaming() const
{
    const std::lock_guard lock(m_device->mutex());
    return m_device->store().isStreaming();
}

ZebErrorType Camera::writeAsOtherClient(const std::string& name, const Value& value)
{
    const std::size_t index = indexOf(name);
    return m_device->apply([&](FeatureStore& store, ChangeSet& changes) {
        return store.write(index, fitting(store.description(index).type, value), m_device->rounding,
                           changes);
    });
}

ZebErrorType Camera::runAsOtherClient(const std::string& name)
{
    const std::size_t index = indexOf(name);
    return m_device->apply(
        [&](FeatureStore& store, ChangeSet& changes) { return store.run(index, changes); });
}

void Camera::setStreaming(bool streaming)
{
    m_device->apply([&](FeatureStore& store, ChangeSet& changes) {
        store.setStreaming(streaming, changes);
        return ZebErrorSuccess;
    });
}

void Camera::force(const std::string& name, const Value& value)
{
    const std::size_t index = indexOf(name);
    m_device->apply([&](FeatureStore& store, ChangeSet& changes) {
        store.store(index, value, changes);
        return ZebErrorSuccess;
    });
}

void Camera::forceAt(const std::string& name, std::int64_t entry, const Value& value)
{
    const std::size_t index = indexOf(name);
    m_device->apply([&](FeatureStore& store, ChangeSet& changes) {
        store.storeAt(index, entry, value, changes);
        return ZebErrorSuccess;
    });
}

void Camera::modify(const std::string& name, const std::function<void(FeatureDescription&)>& change)
{
    const std::size_t index = indexOf(name);
    m_device->apply([&](FeatureStore& store, ChangeSet& changes) {
        FeatureDescription description = store.description(index);
        change(description);
        store.describe(index, std::move(description), changes);
        return ZebErrorSuccess;
    });
}

FailureInjector& Camera::failures()
{
    return m_device->failures();
}

void Camera::setRounding(bool rounds)
{
    const std::lock_guard lock(m_device->mutex());
    m_device->rounding = rounds ? FeatureStore::Rounding::Nearest : FeatureStore::Rounding::Strict;
}

void Camera::lose(std::chrono::milliseconds delayPerCall, ZebErrorType code)
{
    m_device->lose(code, delayPerCall, Operations::all());
}

void Camera::loseValues(std::chrono::milliseconds delayPerCall, ZebErrorType code)
{
    m_device->lose(code, delayPerCall, Operations::fromCamera());
}

void Camera::recover()
{
    m_device->recover();
}

void Camera::setNotifications(const NotificationSettings& settings)
{
    m_device->notifier().setSettings(settings);
}

NotificationSettings Camera::notifications() const
{
    return m_device->notifier().settings();
}

void Camera::announce(const std::string& name)
{
    m_device->notifier().post({m_device->target(indexOf(name))});
}

void Camera::flushNotifications()
{
    m_device->notifier().flush();
}

void Camera::burst(const std::string& name, int count, int threads)
{
    m_device->notifier().burst(m_device->target(indexOf(name)), count, threads);
}

std::uint64_t Camera::notificationCount() const
{
    return m_device->notifier().delivered();
}

std::size_t Camera::observerCount() const
{
    return m_device->notifier().registry().count();
}

std::size_t Camera::observerCount(const std::string& name) const
{
    return m_device->notifier().registry().count(indexOf(name));
}

Journal& Camera::journal()
{
    return m_device->journal();
}

} // namespace sim

#include "Device.h"

#include "SimFeature.h"

#include <utility>

namespace sim {

std::shared_ptr<Device> Device::create(FeatureDescriptions descriptions)
{
    std::shared_ptr<Device> device(new Device(std::move(descriptions)));
    const std::size_t count = device->m_store.size();
    device->m_features.reserve(count);
    for (std::size_t index = 0; index < count; ++index)
        device->m_features.push_back(
            std::make_shared<SimFeature>(device, index, device->m_store.description(index).name));
    return device;
}

Device::Device(FeatureDescriptions descriptions)
    : m_store(std::move(descriptions))
    , m_notifier(std::make_shared<Notifier>())
{
}

ZebCPP::FeaturePtr Device::feature(std::size_t index) const
{
    return m_features[index];
}

void Device::announce(const ChangeSet& changes)
{
    std::vector<Notifier::Target> targets;
    targets.reserve(changes.features().size());
    for (const std::size_t index : changes.features())
        targets.push_back(target(index));
    m_notifier->post(std::move(targets));
}

void Device::lose(ZebErrorType code, std::chrono::milliseconds delay, Operations operations)
{
    m_lostCode = code;
    m_lostDelay = delay;
    m_lost = operations;
    if (operations.contains(Operation::UnregisterObserver))
        m_notifier->registry().clear();
}

void Device::close()
{
    lose(ZebErrorBadHandle, {}, Operations::all());
    m_notifier->stop();
}

} // namespace sim

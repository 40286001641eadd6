#include "FeatureProbe.h"

#include "Device.h"

#include <utility>

namespace sim {

FeatureProbe::FeatureProbe(std::shared_ptr<Device> device, std::size_t index)
    : m_device(std::move(device))
    , m_index(index)
{
}

template <typename Read> auto FeatureProbe::read(Read&& read) const
{
    const std::lock_guard lock(m_device->mutex());
    return read(m_device->store());
}

Value FeatureProbe::value() const
{
    return read([this](const FeatureStore& store) { return store.value(m_index); });
}

Value FeatureProbe::valueAt(std::int64_t entry) const
{
    return read([&](const FeatureStore& store) { return store.valueAt(m_index, entry); });
}

IntegerRange FeatureProbe::range() const
{
    return read([this](const FeatureStore& store) { return store.integerRange(m_index); });
}

FloatRange FeatureProbe::realRange() const
{
    return read([this](const FeatureStore& store) { return store.floatRange(m_index); });
}

bool FeatureProbe::isReadable() const
{
    return read([this](const FeatureStore& store) { return store.isReadable(m_index); });
}

bool FeatureProbe::isWritable() const
{
    return read([this](const FeatureStore& store) { return store.isWritable(m_index); });
}

bool FeatureProbe::isAvailable(const std::string& entry) const
{
    return read([&](const FeatureStore& store) { return store.isAvailable(m_index, entry); });
}

FeatureDescription FeatureProbe::description() const
{
    return read([this](const FeatureStore& store) { return store.description(m_index); });
}

std::size_t FeatureProbe::observerCount() const
{
    return m_device->notifier().registry().count(m_index);
}

ZebCPP::FeaturePtr FeatureProbe::pointer() const
{
    return m_device->feature(m_index);
}

} // namespace sim

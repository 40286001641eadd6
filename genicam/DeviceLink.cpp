#include "DeviceLink.h"

#include <thread>

namespace genicam {

DeviceLink::DeviceLink(ArvDevice* device)
    : m_device(device)
    , m_genicam(arv_device_get_genicam(device))
{
    countCriticals();
    setCache(true);
    g_signal_connect(device, "control-lost", G_CALLBACK(onControlLost), this);
}

DeviceLink::~DeviceLink()
{
    release();
}

void DeviceLink::lose()
{
    State expected = Answering;
    if (m_state.compare_exchange_strong(expected, Lost) && m_told)
        m_told();
}

void DeviceLink::setCache(bool isOn)
{
    if (m_genicam)
        arv_gc_set_register_cache_policy(
            m_genicam, isOn ? ARV_REGISTER_CACHE_POLICY_ENABLE : ARV_REGISTER_CACHE_POLICY_DISABLE);
}

bool DeviceLink::ask(ArvGcFeatureNode* node)
{
    const std::lock_guard lock(m_mutex);
    if (m_state != Lost)
        return m_state == Answering;
    GError* error = nullptr;
    setCache(false);
    arv_gc_feature_node_get_value_as_string(node, &error);
    setCache(true);
    // A camera that was away has no controller any more.
    if (!error && ARV_IS_GV_DEVICE(m_device.get())
        && !arv_gv_device_is_controller(ARV_GV_DEVICE(m_device.get())))
        arv_gv_device_take_control(ARV_GV_DEVICE(m_device.get()), &error);
    const bool isBack = !error;
    g_clear_error(&error);
    State expected = Lost;
    return isBack && m_state.compare_exchange_strong(expected, Answering);
}

void DeviceLink::close()
{
    const State before = m_state.exchange(Closed);
    const bool isFree = m_mutex.try_lock();
    if (isFree)
        m_mutex.unlock();
    if (isFree && before == Answering)
        release();
    else
        std::thread([self = shared_from_this()] { self->release(); }).detach();
}

void DeviceLink::release()
{
    const std::lock_guard lock(m_mutex);
    if (!m_device)
        return;
    g_signal_handlers_disconnect_by_data(m_device.get(), this);
    m_genicam = nullptr;
    m_device.reset();
}

} // namespace genicam

#include "DeviceLink.h"

#include <thread>

namespace genicam {

namespace {

using namespace std::chrono_literals;

/// What is older is read from the camera again: another client may have changed it.
constexpr auto longestTrust = 1s;
constexpr auto patience = 500ms;

} // namespace

DeviceLink::Turn::Turn(DeviceLink& link, const Patience& longestWait)
    : m_link(link)
{
    std::unique_lock lock(link.m_mutex);
    const auto isFree = [&link] { return !link.m_isInUse; };
    if (longestWait)
        m_hasCome = link.m_isFree.wait_for(lock, *longestWait, isFree);
    else
        link.m_isFree.wait(lock, isFree);
    if (m_hasCome)
        link.m_isInUse = true;
}

DeviceLink::Turn::~Turn()
{
    if (!m_hasCome)
        return;
    const std::lock_guard lock(m_link.m_mutex);
    m_link.m_isInUse = false;
    m_link.m_isFree.notify_one();
}

DeviceLink::DeviceLink(ArvDevice* device)
    : m_device(device)
    , m_genicam(arv_device_get_genicam(device))
{
    countCriticals();
    setCache(true);
    const auto onControlLost = +[](ArvDevice*, DeviceLink* self) { self->lose(); };
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

bool DeviceLink::isOld(Reading& last)
{
    const auto now = std::chrono::steady_clock::now();
    const bool isFirst = last.time == std::chrono::steady_clock::time_point();
    const bool isOld = last.age != m_age || (!isFirst && now - last.time > longestTrust);
    if (isOld || isFirst)
        last = {m_age, now};
    return isOld;
}

ZebErrorType DeviceLink::perform(const Work& work, Reading* last, bool isPatient)
{
    const auto refusal = [this] { return isClosed() ? ZebErrorBadHandle : ZebErrorTimeout; };
    if (m_state != Answering)
        return refusal();
    const Turn turn(*this, isPatient ? Patience() : patience);
    if (!turn.hasCome())
        lose();
    if (m_state != Answering || !turn.hasCome()) // by now: another call was waited for
        return refusal();
    if (!last || isOld(*last))
        setCache(false);
    GError* error = nullptr;
    ZebErrorType code = work(&error);
    setCache(true);
    if (error) {
        code = codeOf(*error);
        if (isLoss(*error))
            lose();
        g_error_free(error);
    }
    return code;
}

ArvGcFeatureNode* DeviceLink::node(const char* name) const
{
    ArvGcNode* const found = arv_gc_get_node(m_genicam, name);
    return ARV_IS_GC_FEATURE_NODE(found) ? ARV_GC_FEATURE_NODE(found) : nullptr;
}

bool DeviceLink::ask()
{
    const Turn turn(*this, {});
    if (m_state != Lost)
        return m_state == Answering;
    GError* error = nullptr;
    guint32 version = 0; // which stands first in every camera
    arv_device_read_memory(m_device.get(), 0, sizeof version, &version, &error);
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
    const bool isFree = Turn(*this, 0ms).hasCome();
    if (isFree && before == Answering)
        release();
    else
        std::thread([self = shared_from_this()] { self->release(); }).detach();
}

void DeviceLink::release()
{
    const Turn turn(*this, {});
    if (!m_device)
        return;
    g_signal_handlers_disconnect_by_data(m_device.get(), this);
    m_genicam = nullptr;
    m_device.reset();
}

} // namespace genicam

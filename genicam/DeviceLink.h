#pragma once

#include "Glib.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>

namespace genicam {

/// An open device and its tree of nodes, for one thread at a time. A camera that is lost blocks
/// every call for seconds; so after the first one calls are answered at once, until somebody asks
/// the camera again.
class DeviceLink : public std::enable_shared_from_this<DeviceLink>
{
public:
    /// Takes the reference.
    explicit DeviceLink(ArvDevice* device);
    ~DeviceLink();
    DeviceLink(const DeviceLink&) = delete;
    DeviceLink& operator=(const DeviceLink&) = delete;

    bool isLost() const { return m_state == Lost; }
    bool isClosed() const { return m_state == Closed; }

    /// Called on any thread when the camera is lost.
    void onLost(std::function<void()> told) { m_told = std::move(told); }

    /// Runs @p work(GError**) -> ZebErrorType with device and nodes to itself; an error that it
    /// leaves makes the code. @p isPastCache: registers are read from the camera. Who is not
    /// patient takes a camera for lost with which another thread is stuck.
    template <typename Work>
    ZebErrorType perform(bool isPastCache, Work&& work, bool isPatient = false);

    /// Whether a lost camera answers by now: reads @p node from it. May block for seconds.
    bool ask(ArvGcFeatureNode* node);

    /// Gives the device back: for a camera that is lost or at work on a thread of its own, for
    /// that takes seconds.
    void close();

    // For work() alone.
    ArvDevice* device() const { return m_device.get(); }
    ArvGcNode* node(const char* name) const { return arv_gc_get_node(m_genicam, name); }

private:
    enum State {
        Answering,
        Lost,
        Closed
    };

    void release();
    static void onControlLost(ArvDevice*, DeviceLink* self) { self->lose(); }
    void lose();
    void setCache(bool isOn);
    ZebErrorType refusal() const { return isClosed() ? ZebErrorBadHandle : ZebErrorTimeout; }

    std::timed_mutex m_mutex;
    std::atomic<State> m_state{Answering};
    GObjectPtr<ArvDevice> m_device;
    ArvGc* m_genicam; ///< the device's own
    std::function<void()> m_told;
};

template <typename Work>
ZebErrorType DeviceLink::perform(bool isPastCache, Work&& work, bool isPatient)
{
    if (m_state != Answering)
        return refusal();
    std::unique_lock lock(m_mutex, std::defer_lock);
    if (isPatient)
        lock.lock();
    else if (!lock.try_lock_for(std::chrono::milliseconds(500)))
        lose();
    if (m_state != Answering) // by now: another call was waited for
        return refusal();
    if (isPastCache)
        setCache(false);
    GError* error = nullptr;
    ZebErrorType code = work(&error);
    if (isPastCache)
        setCache(true);
    if (error) {
        code = codeOf(*error);
        if (isLoss(*error))
            lose();
        g_error_free(error);
    }
    return code;
}

} // namespace genicam

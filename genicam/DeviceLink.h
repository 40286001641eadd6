#pragma once

#include "Glib.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>

namespace genicam {

/// When something was read from the camera last.
struct Reading
{
    std::uint64_t age = 0;
    std::chrono::steady_clock::time_point time;
};

/// An open device and its tree of nodes, for one thread at a time. A camera that is lost blocks
/// every call for seconds; so after the first one calls are answered at once, until somebody asks
/// the camera again.
class DeviceLink : public std::enable_shared_from_this<DeviceLink>
{
public:
    using Work = std::function<ZebErrorType(GError**)>;

    /// Takes the reference.
    explicit DeviceLink(ArvDevice* device);
    ~DeviceLink();
    DeviceLink(const DeviceLink&) = delete;
    DeviceLink& operator=(const DeviceLink&) = delete;

    bool isLost() const { return m_state == Lost; }
    bool isClosed() const { return m_state == Closed; }
    /// Called on any thread when the camera is lost.
    void onLost(std::function<void()> told) { m_told = std::move(told); }

    /// Runs @p work with device and nodes to itself; an error that it leaves makes the code.
    /// Registers are read from the camera, unless @p last is young enough for what the library
    /// remembers. Who is not patient takes a camera for lost with which another thread is stuck.
    ZebErrorType perform(const Work& work, Reading* last = nullptr, bool isPatient = false);
    /// What the library remembers may be out of date.
    void forget() { ++m_age; }

    /// Whether a lost camera answers by now. May block for seconds.
    bool ask();
    /// Gives the device back: for a camera that is lost or at work on a thread of its own, for
    /// that takes seconds.
    void close();

    // For work alone.
    ArvDevice* device() const { return m_device.get(); }
    /// Null when there is none.
    ArvGcFeatureNode* node(const char* name) const;

private:
    enum State {
        Answering,
        Lost,
        Closed
    };

    using Patience = std::optional<std::chrono::milliseconds>;

    /// Device and nodes for one thread, as std::timed_mutex gives them, whose waiting for a time
    /// ThreadSanitizer does not know. Without an end of its patience it waits for its turn.
    class Turn
    {
    public:
        Turn(DeviceLink& link, const Patience& longestWait);
        ~Turn();
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;
        bool hasCome() const { return m_hasCome; }

    private:
        DeviceLink& m_link;
        bool m_hasCome = true;
    };

    bool isOld(Reading& last);
    void lose();
    void release();
    void setCache(bool isOn);

    std::mutex m_mutex;
    std::condition_variable m_isFree;
    bool m_isInUse = false;
    std::atomic<State> m_state{Answering};
    std::atomic<std::uint64_t> m_age{0};
    GObjectPtr<ArvDevice> m_device;
    ArvGc* m_genicam; ///< the device's own
    std::function<void()> m_told;
};

} // namespace genicam

#pragma once

#include "DeviceLink.h"
#include "Frame.h"

#include <optional>
#include <thread>

namespace genicam {

/// The pictures of a started camera, of which the newest is kept.
class ImageStream
{
public:
    /// @p onFrame is called on the stream's thread.
    ImageStream(std::shared_ptr<DeviceLink> link, std::function<void()> onFrame);
    ~ImageStream();

    /// Starts the camera; empty, or why not.
    std::string start();
    /// The newest frame, once.
    std::optional<Frame> take();

private:
    void run();
    ArvBuffer* newestBuffer();
    void show(ArvBuffer* buffer);
    void count();
    void setLocked(bool is, GError** error);
    ZebErrorType setAcquiring(bool isOn, GError** error);

    const std::shared_ptr<DeviceLink> m_link;
    const std::function<void()> m_onFrame;
    GObjectPtr<ArvStream> m_stream;
    std::thread m_thread;
    std::atomic<bool> m_isStopping{false};
    std::mutex m_mutex;
    std::optional<Frame> m_frame;
    // Of the stream's thread:
    double m_framesPerSecond = 0.0;
    std::uint64_t m_lostFrames = 0;
    int m_framesOfSecond = 0;
    gint64 m_second = 0;
};

} // namespace genicam

#include "ImageStream.h"

#include <algorithm>
#include <utility>

namespace genicam {

namespace {

constexpr std::size_t memory = std::size_t{256} * 1024 * 1024;
constexpr std::size_t largestPayload = std::size_t{1024} * 1024 * 1024;
constexpr std::uint64_t patience = std::uint64_t{100} * 1000; // microseconds

} // namespace

ImageStream::ImageStream(std::shared_ptr<DeviceLink> link, std::function<void()> onFrame)
    : m_link(std::move(link))
    , m_onFrame(std::move(onFrame))
{
}

ImageStream::~ImageStream()
{
    if (!m_thread.joinable())
        return;
    m_link->perform([this](GError** error) { return setAcquiring(false, error); });
    m_isStopping = true;
    m_thread.join();
    // A lost camera blocks this, too, for seconds.
    if (m_link->isLost())
        std::thread([stream = m_stream.release(), link = m_link] {
            g_object_unref(stream);
        }).detach();
}

std::string ImageStream::start()
{
    std::string reason = "the camera does not answer";
    const ZebErrorType result = m_link->perform([&](GError** error) {
        ArvGcFeatureNode* const node = m_link->node("PayloadSize");
        const auto size
            = ARV_IS_GC_INTEGER(node) ? arv_gc_integer_get_value(ARV_GC_INTEGER(node), error) : 0;
        const std::size_t payload = static_cast<std::size_t>(std::max<gint64>(0, size));
        if (!*error)
            m_stream.reset(arv_device_create_stream(m_link->device(), nullptr, nullptr, error));
        if (!*error && m_stream && payload > 0 && payload <= largestPayload) {
            const std::size_t count = std::clamp<std::size_t>(memory / payload, 2, 8);
            for (std::size_t i = 0; i < count; ++i)
                arv_stream_push_buffer(m_stream.get(), arv_buffer_new_allocate(payload));
            if (setAcquiring(true, error) == ZebErrorSuccess && !*error)
                return ZebErrorSuccess;
            if (!*error || !isLoss(**error))
                setLocked(false, nullptr);
            reason = "the camera cannot be started";
        } else {
            reason = "the camera tells no size of its pictures, or an absurd one";
        }
        if (*error)
            reason = (*error)->message;
        return ZebErrorOther;
    });
    if (result != ZebErrorSuccess)
        return reason;
    m_thread = std::thread(&ImageStream::run, this);
    return {};
}

// While it streams a camera keeps what decides the size of its pictures as it is, when told so.
void ImageStream::setLocked(bool is, GError** error)
{
    ArvGcFeatureNode* const locked = m_link->node("TLParamsLocked");
    if (ARV_IS_GC_INTEGER(locked))
        arv_gc_integer_set_value(ARV_GC_INTEGER(locked), is, error);
}

ZebErrorType ImageStream::setAcquiring(bool isOn, GError** error)
{
    ArvGcFeatureNode* const command = m_link->node(isOn ? "AcquisitionStart" : "AcquisitionStop");
    if (isOn)
        setLocked(true, error);
    if (!*error && ARV_IS_GC_COMMAND(command))
        arv_gc_command_execute(ARV_GC_COMMAND(command), error);
    if (!*error && !isOn)
        setLocked(false, error);
    return ARV_IS_GC_COMMAND(command) ? ZebErrorSuccess : ZebErrorNotFound;
}

void ImageStream::run()
{
    m_second = g_get_monotonic_time();
    while (!m_isStopping) {
        if (ArvBuffer* const buffer = newestBuffer()) {
            if (arv_buffer_get_status(buffer) == ARV_BUFFER_STATUS_SUCCESS)
                show(buffer);
            arv_stream_push_buffer(m_stream.get(), buffer);
        }
        if (g_get_monotonic_time() - m_second >= G_USEC_PER_SEC)
            count();
    }
}

void ImageStream::count()
{
    guint64 failures = 0;
    guint64 underruns = 0;
    arv_stream_get_statistics(m_stream.get(), nullptr, &failures, &underruns);
    const auto now = g_get_monotonic_time();
    m_framesPerSecond = m_framesOfSecond * 1e6 / static_cast<double>(now - m_second);
    m_lostFrames = failures + underruns;
    m_framesOfSecond = 0;
    m_second = now;
}

/// The others go back to the camera unseen.
ArvBuffer* ImageStream::newestBuffer()
{
    ArvBuffer* newest = arv_stream_timeout_pop_buffer(m_stream.get(), patience);
    while (newest) {
        m_framesOfSecond += arv_buffer_get_status(newest) == ARV_BUFFER_STATUS_SUCCESS ? 1 : 0;
        ArvBuffer* const next = arv_stream_try_pop_buffer(m_stream.get());
        if (!next)
            break;
        arv_stream_push_buffer(m_stream.get(), newest);
        newest = next;
    }
    return newest;
}

void ImageStream::show(ArvBuffer* buffer)
{
    std::size_t size = 0;
    const void* const data = arv_buffer_get_image_data(buffer, &size);
    Frame frame = decodeFrame(
        static_cast<const std::uint8_t*>(data), size, arv_buffer_get_image_width(buffer),
        arv_buffer_get_image_height(buffer), arv_buffer_get_image_pixel_format(buffer));
    frame.x = arv_buffer_get_image_x(buffer);
    frame.y = arv_buffer_get_image_y(buffer);
    frame.framesPerSecond = m_framesPerSecond;
    frame.lostFrames = m_lostFrames;
    {
        const std::lock_guard lock(m_mutex);
        m_frame = std::move(frame);
    }
    m_onFrame();
}

std::optional<Frame> ImageStream::take()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_frame, std::nullopt);
}

} // namespace genicam

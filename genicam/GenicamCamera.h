#pragma once

#include "Frame.h"

#include <ZebCPP/ZebCPP.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

typedef struct _ArvDevice ArvDevice;

namespace genicam {

/// Criticals and warnings of GLib so far: faults of the bridge, the library or a description. They
/// are printed, and end nothing.
int criticalCount();

class ChangeWatch;
class DeviceLink;
class GenicamFeature;
class ImageStream;

/// An open camera that speaks GenICam, behind the SDK's interface. Its functions may be called on
/// any thread, but not two of them at once; features on any thread at any time. No exception and
/// no abort comes out of the library.
class GenicamCamera
{
public:
    struct Options
    {
        /// Put before the vendor's name, when it is not empty.
        std::string vendorPrefix;
        /// The camera does not answer any more, or does again. Called on a thread of the bridge.
        std::function<void(bool isGone)> onGone = [](bool) {};
    };

    /// Takes the device, which has a description.
    GenicamCamera(ArvDevice* device, const Options& options);
    ~GenicamCamera();

    /// In the order of the description's categories, each once.
    std::vector<ZebCPP::FeaturePtr> features() const;
    /// Null when there is none.
    ZebCPP::FeaturePtr feature(const std::string& name) const;

    bool isGone() const;
    std::size_t observerCount() const;
    /// The value as a text, read from the camera itself; empty when it cannot be read.
    std::string readText(const std::string& name) const;
    /// Writes behind the back of those who observe, as another client does.
    ZebErrorType writeAsOtherClient(const std::string& name, const std::string& value);

    /// @p onFrame is called on the stream's thread. Empty, or why it does not start.
    std::string startStream(std::function<void()> onFrame);
    void stopStream();
    /// The newest frame, once.
    std::optional<Frame> takeFrame();

private:
    std::shared_ptr<GenicamFeature> find(const std::string& name) const;

    std::shared_ptr<DeviceLink> m_link;
    std::shared_ptr<ChangeWatch> m_watch;
    std::vector<std::shared_ptr<GenicamFeature>> m_features;
    std::unique_ptr<ImageStream> m_stream;
};

} // namespace genicam

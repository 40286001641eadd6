#pragma once

#include <memory>
#include <string>
#include <vector>

// What finds or opens cameras blocks: call it from a thread of its own.
typedef struct _ArvDevice ArvDevice;

namespace genicam {

struct FoundCamera
{
    std::string id;
    std::string vendor;
    std::string model;
    std::string serialNumber;
    std::string address;
    std::string protocol;
};

/// The cameras on network and USB; asks the whole network, for about a second.
std::vector<FoundCamera> findCameras();

/// Opens by ID or address; null, and a reason. An address of this machine is asked over the
/// loopback interface, and nothing else.
ArvDevice* openDevice(const std::string& idOrAddress, std::string& reason);

/// A GigE Vision camera without hardware, as long as this lives: one a machine, bound to the
/// loopback interface. Null when its port is taken.
std::shared_ptr<void> hostFakeCamera();
constexpr const char* fakeCameraAddress = "127.0.0.1";

} // namespace genicam

#pragma once

#include <memory>
#include <string>
#include <vector>

// Both block: call them from a thread of their own.
typedef struct _ArvDevice ArvDevice;
typedef struct _ArvGvFakeCamera ArvGvFakeCamera;

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
/// loopback interface.
class FakeCamera
{
public:
    static constexpr const char* address = "127.0.0.1";

    FakeCamera();
    ~FakeCamera();
    FakeCamera(const FakeCamera&) = delete;
    FakeCamera& operator=(const FakeCamera&) = delete;

    bool isRunning() const;

private:
    ArvGvFakeCamera* m_camera;
};

} // namespace genicam

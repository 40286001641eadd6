#include "Discovery.h"

#include "Glib.h"

#include <mutex>

namespace genicam {

namespace {

/// The library's list of cameras is one for the process.
std::mutex listMutex;

bool isLoopback(const std::string& address)
{
    const GObjectPtr<GInetAddress> parsed(g_inet_address_new_from_string(address.c_str()));
    return parsed && g_inet_address_get_is_loopback(parsed.get());
}

} // namespace

std::vector<FoundCamera> findCameras()
{
    countCriticals();
    const std::lock_guard lock(listMutex);
    arv_update_device_list();
    std::vector<FoundCamera> cameras;
    for (unsigned i = 0; i < arv_get_n_devices(); ++i) {
        cameras.push_back({textOf(arv_get_device_id(i)), textOf(arv_get_device_vendor(i)),
                           textOf(arv_get_device_model(i)), textOf(arv_get_device_serial_nbr(i)),
                           textOf(arv_get_device_address(i)), textOf(arv_get_device_protocol(i))});
    }
    return cameras;
}

ArvDevice* openDevice(const std::string& idOrAddress, std::string& reason)
{
    countCriticals();
    GError* error = nullptr;
    ArvDevice* device = nullptr;
    if (isLoopback(idOrAddress)) {
        const GObjectPtr<GInetAddress> address(g_inet_address_new_from_string(idOrAddress.c_str()));
        device = arv_gv_device_new(address.get(), address.get(), &error);
    } else {
        const std::lock_guard lock(listMutex);
        device = arv_open_device(idOrAddress.c_str(), &error);
    }
    if (error || !device || !arv_device_get_genicam(device)) {
        reason = error ? error->message
            : device   ? "it has no description"
                       : "there is no such camera";
        g_clear_error(&error);
        g_clear_object(&device);
    }
    return device;
}

std::shared_ptr<void> hostFakeCamera()
{
    countCriticals();
    GObjectPtr<ArvGvFakeCamera> camera(arv_gv_fake_camera_new(fakeCameraAddress, "GV01"));
    if (!arv_gv_fake_camera_is_running(camera.get()))
        return nullptr;
    return camera;
}

} // namespace genicam

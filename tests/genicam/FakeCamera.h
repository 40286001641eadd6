#pragma once

#include "genicam/Discovery.h"
#include "genicam/GenicamCamera.h"

#include <QDir>
#include <QLockFile>

/// The library's GigE Vision camera on the loopback interface, for one process at a time: its port
/// is the standard's.
struct HostedCamera
{
    bool isRunning()
    {
        if (!fake && (lock.isLocked() || lock.tryLock(60000)))
            fake = genicam::hostFakeCamera();
        return fake != nullptr;
    }
    static ArvDevice* open()
    {
        std::string reason;
        return genicam::openDevice(genicam::fakeCameraAddress, reason);
    }

    QLockFile lock{QDir::temp().filePath("genicam-port-3956.lock")};
    std::shared_ptr<void> fake;
};

#define SKIP_WITHOUT(hosted)                                                                       \
    if (!(hosted).isRunning())                                                                     \
    QSKIP("No camera can be hosted on the loopback interface here.")

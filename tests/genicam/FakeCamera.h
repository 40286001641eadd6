#pragma once

#include "genicam/Discovery.h"
#include "genicam/GenicamCamera.h"

#include <QDir>
#include <QLockFile>

#include <memory>

/// The library's GigE Vision camera on the loopback interface, for one process at a time: its port
/// is the standard's.
struct HostedCamera
{
    HostedCamera()
    {
        if (lock.tryLock(60000))
            fake = std::make_unique<genicam::FakeCamera>();
    }

    bool isRunning() const { return fake && fake->isRunning(); }
    ArvDevice* open() const
    {
        std::string reason;
        ArvDevice* const device = genicam::openDevice(genicam::FakeCamera::address, reason);
        return device;
    }

    QLockFile lock{QDir::temp().filePath("genicam-port-3956.lock")};
    std::unique_ptr<genicam::FakeCamera> fake;
};

#define SKIP_WITHOUT(hosted)                                                                       \
    if (!(hosted).isRunning())                                                                     \
    QSKIP("No camera can be hosted on the loopback interface here.")

#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

typedef struct _ArvDevice ArvDevice;

/// A camera without hardware or socket: registers of four bytes, high byte first, in memory, with
/// the description of camera.xml. Its sensor has 2592 x 1944 pixels.
struct ByteArrayDevice
{
    enum Failure {
        None,
        Timeout,
        Busy,
        AccessDenied,
        WriteProtected
    };

    ByteArrayDevice();

    /// May be closed after this is gone. The description lacks the node @p missing.
    static ArvDevice* open(const std::shared_ptr<ByteArrayDevice>& memory,
                           const std::string& missing = {});

    // As the camera itself, or another client.
    std::uint32_t read(std::uint32_t address);
    void write(std::uint32_t address, std::uint32_t value);

    /// Every access from now on fails like this, after the delay.
    void fail(Failure next, std::chrono::milliseconds wait = {});

    std::mutex mutex;
    std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(0x1000);
    std::atomic<Failure> failure{None};
    std::atomic<std::chrono::milliseconds> delay{};
    std::atomic<int> reads{0};
    std::atomic<int> writes{0};
    /// What the camera does by itself after a register was written.
    std::function<void(std::uint32_t address)> reaction = [](std::uint32_t) {};
};

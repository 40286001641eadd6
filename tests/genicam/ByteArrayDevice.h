#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

typedef struct _ArvDevice ArvDevice;

/// A camera without hardware or socket: registers of four bytes, high byte first, in memory, with
/// the description of camera.xml. Its sensor has 2592 x 1944 pixels. Registers go by the features
/// that they hold, those of the regions also by the region.
struct ByteArrayDevice
{
    enum Failure {
        None,
        Timeout,
        Busy,
        AccessDenied,
        WriteProtected
    };
    static constexpr int regionCount = 4;

    /// The description lacks the node @p missing.
    explicit ByteArrayDevice(const std::string& missing = {});

    /// May be closed after this is gone.
    static ArvDevice* open(const std::shared_ptr<ByteArrayDevice>& memory);

    // As the camera itself, or another client.
    std::uint32_t read(const std::string& feature, int region = 0);
    void write(const std::string& feature, std::uint32_t value, int region = 0);

    /// Every access from now on fails like this, after the delay.
    void fail(Failure next, std::chrono::milliseconds wait = {});
    void takeWrite(std::uint64_t address, const void* data, std::size_t size);
    /// The features that clients wrote since the last call.
    std::vector<std::string> takeWrites();

    std::string description;
    std::mutex mutex;
    std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(0x1000);
    std::atomic<Failure> failure{None};
    std::atomic<std::chrono::milliseconds> delay{};
    std::atomic<int> reads{0};
    /// What the camera does by itself after a register was written.
    std::function<void(const std::string& feature)> reaction = [](const std::string&) {};

private:
    std::size_t addressOf(const std::string& feature, int region) const;

    std::map<std::string, std::uint32_t> m_addresses; ///< of region 0
    std::vector<std::string> m_writes;
};

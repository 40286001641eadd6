#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

typedef struct _ArvDevice ArvDevice;

/// A camera without hardware or socket: registers of four bytes, high byte first, in memory, with a
/// description from a file.
class ByteArrayDevice
{
public:
    enum Failure {
        None,
        Timeout,
        Busy,
        AccessDenied,
        WriteProtected
    };

    explicit ByteArrayDevice(const std::string& descriptionFile);
    ~ByteArrayDevice();
    ByteArrayDevice(const ByteArrayDevice&) = delete;
    ByteArrayDevice& operator=(const ByteArrayDevice&) = delete;

    /// A reference for whoever opens it.
    ArvDevice* reference() const;

    // As the camera itself, or another client.
    std::uint32_t read(std::uint32_t address) const;
    void write(std::uint32_t address, std::uint32_t value);

    /// Every access from now on fails like this, after the delay.
    void fail(Failure failure, std::chrono::milliseconds delay = {});
    /// What the camera does by itself after a register was written.
    void afterWrite(std::function<void(std::uint32_t address)> reaction);
    int reads() const;
    int writes() const;

private:
    ArvDevice* m_device;
};

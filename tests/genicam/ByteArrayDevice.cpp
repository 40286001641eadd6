#include "ByteArrayDevice.h"

#include <arv.h>

#include <cstring>
#include <fstream>
#include <string>
#include <thread>

namespace {

struct TestDevice
{
    ArvDevice parent;
    std::shared_ptr<ByteArrayDevice>* memory;
    std::string* description;
    ArvGc* genicam;
};

struct TestDeviceClass
{
    ArvDeviceClass parent;
};

G_DEFINE_TYPE(TestDevice, test_device, ARV_TYPE_DEVICE)

TestDevice* self(void* device)
{
    return static_cast<TestDevice*>(device);
}

bool refuses(ByteArrayDevice& memory, guint64 address, guint32 size, GError** error)
{
    static const int codes[] = {0, ARV_DEVICE_ERROR_TIMEOUT, ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY,
                                ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED,
                                ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT};
    std::this_thread::sleep_for(memory.delay.load());
    const bool isOutside = address + size > memory.bytes.size();
    if (!isOutside && memory.failure == ByteArrayDevice::None)
        return false;
    g_set_error(error, ARV_DEVICE_ERROR,
                isOutside ? ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS : codes[memory.failure],
                "refused by the test");
    return true;
}

gboolean readMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    ByteArrayDevice& memory = **self(device)->memory;
    ++memory.reads;
    if (refuses(memory, address, size, error))
        return FALSE;
    const std::lock_guard lock(memory.mutex);
    std::memcpy(buffer, memory.bytes.data() + address, size);
    return TRUE;
}

gboolean writeMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    ByteArrayDevice& memory = **self(device)->memory;
    ++memory.writes;
    if (refuses(memory, address, size, error))
        return FALSE;
    {
        const std::lock_guard lock(memory.mutex);
        std::memcpy(memory.bytes.data() + address, buffer, size);
    }
    memory.reaction(static_cast<std::uint32_t>(address));
    return TRUE;
}

void finalize(GObject* object)
{
    g_clear_object(&self(object)->genicam);
    delete self(object)->memory;
    delete self(object)->description;
    G_OBJECT_CLASS(test_device_parent_class)->finalize(object);
}

void test_device_init(TestDevice*) { }

void test_device_class_init(TestDeviceClass* type)
{
    G_OBJECT_CLASS(type)->finalize = finalize;
    type->parent.read_memory = readMemory;
    type->parent.write_memory = writeMemory;
    type->parent.get_genicam = [](ArvDevice* device) { return self(device)->genicam; };
}

} // namespace

ByteArrayDevice::ByteArrayDevice()
{
    const std::pair<std::uint32_t, std::uint32_t> registers[]
        = {{0x4c, 99}, {0x100, 2592},       {0x104, 1944}, {0x110, 1},
           {0x114, 1}, {0x120, 0x01080001}, {0x124, 100},  {0x200, 1}};
    for (const auto& [address, value] : registers)
        write(address, value);
    for (std::uint32_t region = 0; region < 4; ++region) {
        write(0x20c + 0x20 * region, 486 * region);
        write(0x210 + 0x20 * region, 2592);
        write(0x214 + 0x20 * region, 400);
    }
}

ArvDevice* ByteArrayDevice::open(const std::shared_ptr<ByteArrayDevice>& memory,
                                 const std::string& missing)
{
    auto* const device = self(g_object_new(test_device_get_type(), nullptr));
    device->memory = new std::shared_ptr<ByteArrayDevice>(memory);
    device->description = new std::string;
    std::ifstream file(DESCRIPTION_FILE);
    for (std::string line; std::getline(file, line);) {
        if (missing.empty() || line.find('"' + missing + '"') == std::string::npos)
            *device->description += line;
    }
    device->genicam
        = arv_gc_new(&device->parent, device->description->data(), device->description->size());
    return &device->parent;
}

std::uint32_t ByteArrayDevice::read(std::uint32_t address)
{
    const std::lock_guard lock(mutex);
    guint32 value = 0;
    std::memcpy(&value, bytes.data() + address, sizeof value);
    return GUINT32_FROM_BE(value);
}

void ByteArrayDevice::write(std::uint32_t address, std::uint32_t value)
{
    const std::lock_guard lock(mutex);
    const guint32 sent = GUINT32_TO_BE(value);
    std::memcpy(bytes.data() + address, &sent, sizeof sent);
}

void ByteArrayDevice::fail(Failure next, std::chrono::milliseconds wait)
{
    delay = wait;
    failure = next;
}

#include "ByteArrayDevice.h"

#include <arv.h>

#include <cstring>
#include <fstream>
#include <regex>
#include <thread>
#include <utility>

namespace {

constexpr std::uint32_t firstOfRegions = 0x200;
constexpr std::uint32_t regionDistance = 0x20;

struct TestDevice
{
    ArvDevice parent;
    std::shared_ptr<ByteArrayDevice>* memory;
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

bool refuses(ByteArrayDevice& memory, GError** error)
{
    static const int codes[] = {0, ARV_DEVICE_ERROR_TIMEOUT, ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY,
                                ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED,
                                ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT};
    std::this_thread::sleep_for(memory.delay.load());
    if (memory.failure == ByteArrayDevice::None)
        return false;
    g_set_error(error, ARV_DEVICE_ERROR, codes[memory.failure], "refused by the test");
    return true;
}

gboolean readMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    ByteArrayDevice& memory = **self(device)->memory;
    ++memory.reads;
    if (refuses(memory, error))
        return FALSE;
    const std::lock_guard lock(memory.mutex);
    std::memcpy(buffer, memory.bytes.data() + address, size);
    return TRUE;
}

gboolean writeMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    ByteArrayDevice& memory = **self(device)->memory;
    if (refuses(memory, error))
        return FALSE;
    memory.takeWrite(address, buffer, size);
    return TRUE;
}

void finalize(GObject* object)
{
    g_clear_object(&self(object)->genicam);
    delete self(object)->memory;
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

ByteArrayDevice::ByteArrayDevice(const std::string& missing)
{
    const std::regex node("Name=\"(\\w+?)(Reg)?\">.*<Address>(0x\\w+)<");
    std::smatch parts;
    std::ifstream file(DESCRIPTION_FILE);
    for (std::string line; std::getline(file, line);) { // one for a node
        if (std::regex_search(line, parts, node))
            m_addresses[parts[1]] = static_cast<std::uint32_t>(std::stoul(parts[3], nullptr, 16));
        if (missing.empty() || line.find('"' + missing + '"') == std::string::npos)
            description += line;
    }
    const std::pair<const char*, std::uint32_t> values[]
        = {{"TriggerSource", 99},    {"Width", 2592},        {"Height", 1944},
           {"BinningHorizontal", 1}, {"BinningVertical", 1}, {"PixelFormat", 0x01080001},
           {"ExposureTime", 100},    {"SubRegionMode", 1}};
    for (const auto& [feature, value] : values)
        write(feature, value);
    for (int region = 0; region < regionCount; ++region) {
        write("SubRegionOffsetY", 486U * static_cast<std::uint32_t>(region), region);
        write("SubRegionWidth", 2592, region);
        write("SubRegionHeight", 400, region);
    }
}

ArvDevice* ByteArrayDevice::open(const std::shared_ptr<ByteArrayDevice>& memory)
{
    auto* const device = self(g_object_new(test_device_get_type(), nullptr));
    device->memory = new std::shared_ptr<ByteArrayDevice>(memory);
    device->genicam
        = arv_gc_new(&device->parent, memory->description.data(), memory->description.size());
    return &device->parent;
}

std::size_t ByteArrayDevice::addressOf(const std::string& feature, int region) const
{
    return m_addresses.at(feature) + regionDistance * static_cast<std::size_t>(region);
}

std::uint32_t ByteArrayDevice::read(const std::string& feature, int region)
{
    const std::lock_guard lock(mutex);
    guint32 value = 0;
    std::memcpy(&value, bytes.data() + addressOf(feature, region), sizeof value);
    return GUINT32_FROM_BE(value);
}

void ByteArrayDevice::write(const std::string& feature, std::uint32_t value, int region)
{
    const std::lock_guard lock(mutex);
    const guint32 sent = GUINT32_TO_BE(value);
    std::memcpy(bytes.data() + addressOf(feature, region), &sent, sizeof sent);
}

void ByteArrayDevice::fail(Failure next, std::chrono::milliseconds wait)
{
    delay = wait;
    failure = next;
}

void ByteArrayDevice::takeWrite(std::uint64_t address, const void* data, std::size_t size)
{
    std::string written;
    for (const auto& [feature, first] : m_addresses) {
        const bool isOfRegion = first >= firstOfRegions && address >= first;
        if (address == first || (isOfRegion && (address - first) % regionDistance == 0))
            written = feature;
    }
    {
        const std::lock_guard lock(mutex);
        std::memcpy(bytes.data() + address, data, size);
        m_writes.push_back(written);
    }
    reaction(written);
}

std::vector<std::string> ByteArrayDevice::takeWrites()
{
    const std::lock_guard lock(mutex);
    return std::exchange(m_writes, {});
}

#include "ByteArrayDevice.h"

#include <arv.h>

#include <atomic>
#include <cstring>
#include <fstream>
#include <iterator>
#include <mutex>
#include <thread>
#include <vector>

namespace {

constexpr std::size_t memorySize = 0x1000;

struct Memory
{
    std::mutex mutex;
    std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(memorySize);
    std::string description;
    ArvGc* genicam = nullptr;
    std::atomic<ByteArrayDevice::Failure> failure{ByteArrayDevice::None};
    std::atomic<std::int64_t> delay{0};
    std::atomic<int> reads{0};
    std::atomic<int> writes{0};
    std::function<void(std::uint32_t)> reaction;
};

struct TestDevice
{
    ArvDevice parent;
    Memory* memory;
};

struct TestDeviceClass
{
    ArvDeviceClass parent;
};

G_DEFINE_TYPE(TestDevice, test_device, ARV_TYPE_DEVICE)

Memory& memoryOf(ArvDevice* device)
{
    return *reinterpret_cast<TestDevice*>(device)->memory;
}

bool refuses(Memory& memory, guint64 address, guint32 size, GError** error)
{
    static const int codes[] = {0, ARV_DEVICE_ERROR_TIMEOUT, ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY,
                                ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED,
                                ARV_DEVICE_ERROR_PROTOCOL_ERROR_WRITE_PROTECT};
    std::this_thread::sleep_for(std::chrono::milliseconds(memory.delay));
    const bool isOutside = address + size > memorySize;
    if (!isOutside && memory.failure == ByteArrayDevice::None)
        return false;
    g_set_error(error, ARV_DEVICE_ERROR,
                isOutside ? ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS : codes[memory.failure],
                "refused by the test");
    return true;
}

gboolean readMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    Memory& memory = memoryOf(device);
    ++memory.reads;
    if (refuses(memory, address, size, error))
        return FALSE;
    const std::lock_guard lock(memory.mutex);
    std::memcpy(buffer, memory.bytes.data() + address, size);
    return TRUE;
}

gboolean writeMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    Memory& memory = memoryOf(device);
    ++memory.writes;
    if (refuses(memory, address, size, error))
        return FALSE;
    {
        const std::lock_guard lock(memory.mutex);
        std::memcpy(memory.bytes.data() + address, buffer, size);
    }
    if (memory.reaction)
        memory.reaction(static_cast<std::uint32_t>(address));
    return TRUE;
}

gboolean readRegister(ArvDevice* device, guint64 address, guint32* value, GError** error)
{
    const gboolean isRead = readMemory(device, address, sizeof *value, value, error);
    *value = GUINT32_FROM_BE(*value);
    return isRead;
}

gboolean writeRegister(ArvDevice* device, guint64 address, guint32 value, GError** error)
{
    guint32 bytes = GUINT32_TO_BE(value);
    return writeMemory(device, address, sizeof bytes, &bytes, error);
}

const char* descriptionText(ArvDevice* device, std::size_t* size)
{
    *size = memoryOf(device).description.size();
    return memoryOf(device).description.c_str();
}

ArvGc* descriptionNodes(ArvDevice* device)
{
    return memoryOf(device).genicam;
}

void finalize(GObject* object)
{
    Memory* const memory = reinterpret_cast<TestDevice*>(object)->memory;
    g_clear_object(&memory->genicam);
    delete memory;
    G_OBJECT_CLASS(test_device_parent_class)->finalize(object);
}

void test_device_init(TestDevice* device)
{
    device->memory = new Memory;
}

void test_device_class_init(TestDeviceClass* type)
{
    G_OBJECT_CLASS(type)->finalize = finalize;
    type->parent.read_memory = readMemory;
    type->parent.write_memory = writeMemory;
    type->parent.read_register = readRegister;
    type->parent.write_register = writeRegister;
    type->parent.get_genicam_xml = descriptionText;
    type->parent.get_genicam = descriptionNodes;
}

} // namespace

ByteArrayDevice::ByteArrayDevice(const std::string& descriptionFile)
    : m_device(ARV_DEVICE(g_object_new(test_device_get_type(), nullptr)))
{
    Memory& memory = memoryOf(m_device);
    std::ifstream file(descriptionFile);
    memory.description.assign(std::istreambuf_iterator<char>(file), {});
    memory.genicam = arv_gc_new(m_device, memory.description.data(), memory.description.size());
}

ByteArrayDevice::~ByteArrayDevice()
{
    g_object_unref(m_device);
}

ArvDevice* ByteArrayDevice::reference() const
{
    return ARV_DEVICE(g_object_ref(m_device));
}

std::uint32_t ByteArrayDevice::read(std::uint32_t address) const
{
    Memory& memory = memoryOf(m_device);
    const std::lock_guard lock(memory.mutex);
    guint32 value = 0;
    std::memcpy(&value, memory.bytes.data() + address, sizeof value);
    return GUINT32_FROM_BE(value);
}

void ByteArrayDevice::write(std::uint32_t address, std::uint32_t value)
{
    Memory& memory = memoryOf(m_device);
    const std::lock_guard lock(memory.mutex);
    const guint32 bytes = GUINT32_TO_BE(value);
    std::memcpy(memory.bytes.data() + address, &bytes, sizeof bytes);
}

void ByteArrayDevice::fail(Failure failure, std::chrono::milliseconds delay)
{
    memoryOf(m_device).delay = delay.count();
    memoryOf(m_device).failure = failure;
}

void ByteArrayDevice::afterWrite(std::function<void(std::uint32_t)> reaction)
{
    memoryOf(m_device).reaction = std::move(reaction);
}

int ByteArrayDevice::reads() const
{
    return memoryOf(m_device).reads;
}

int ByteArrayDevice::writes() const
{
    return memoryOf(m_device).writes;
}

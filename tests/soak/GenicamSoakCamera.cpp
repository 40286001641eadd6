#include "GenicamSoakCamera.h"

#include "genicam/ByteArrayDevice.h"
#include "genicam/GenicamCamera.h"

namespace {

std::shared_ptr<ByteArrayDevice> deviceThatCrops()
{
    auto device = std::make_shared<ByteArrayDevice>();
    device->reaction = [memory = device.get()](const std::string& feature) {
        const bool isHorizontal = feature == "BinningHorizontal";
        if (!isHorizontal && feature != "BinningVertical")
            return;
        const char* const size = isHorizontal ? "Width" : "Height";
        const auto room = isHorizontal ? 2592 / memory->read(feature) / 8 * 8
                                       : 1944 / memory->read(feature) / 2 * 2;
        memory->write(isHorizontal ? "OffsetX" : "OffsetY", 0);
        memory->write(size, std::min(memory->read(size), room));
    };
    return device;
}

} // namespace

GenicamSoakCamera::GenicamSoakCamera(Random& random)
    : m_random(random)
    , m_device(deviceThatCrops())
    , m_camera(std::make_unique<genicam::GenicamCamera>(
          ByteArrayDevice::open(m_device), genicam::GenicamCamera::Options{"Brontax", [](bool) {}}))
{
    m_character.isHonest = m_character.isStrict = random.oneIn(2);
    m_character.hasThreads = true;
}

GenicamSoakCamera::~GenicamSoakCamera() = default;

std::vector<ZebCPP::FeaturePtr> GenicamSoakCamera::features() const
{
    return m_camera->features();
}

std::size_t GenicamSoakCamera::observerCount() const
{
    return m_camera->observerCount();
}

bool GenicamSoakCamera::has(const QString& feature) const
{
    return m_camera->feature(feature.toStdString()) != nullptr;
}

QString GenicamSoakCamera::text(const QString& feature) const
{
    return QString::fromStdString(m_camera->readText(feature.toStdString()));
}

QString GenicamSoakCamera::textOfRegion(const QString& feature, int region) const
{
    return QString::number(m_device->read(feature.toStdString(), region));
}

sim::Snapshot GenicamSoakCamera::state() const
{
    const auto number = [this](const char* feature) { return text(feature).toLongLong(); };
    sim::Snapshot state;
    state.maximum = {number("WidthMax"), number("HeightMax")};
    state.hasMultipleRegions = m_device->read("MultipleRegionEnable") != 0;
    if (!state.hasMultipleRegions) {
        state.regions = {{number("OffsetX"), number("OffsetY"), number("Width"), number("Height")}};
        return state;
    }
    for (int region = 0; region < ByteArrayDevice::regionCount; ++region) {
        const auto held = [&](const char* feature) { return m_device->read(feature, region); };
        // Binning leaves them where they are.
        if (held("SubRegionMode") != 0)
            state.regions.push_back({held("SubRegionOffsetX"), held("SubRegionOffsetY"),
                                     held("SubRegionWidth"), held("SubRegionHeight"), region,
                                     number("WidthMax") == 2592 && number("HeightMax") == 1944});
    }
    return state;
}

SoakCamera::Account GenicamSoakCamera::takeAccount()
{
    Account account{std::exchange(m_writes, {}), 0};
    for (const std::string& feature : m_device->takeWrites())
        account.writes << QString::fromStdString(feature) + "=";
    return account;
}

void GenicamSoakCamera::tellFigures(Report& report) const
{
    report["cameras that speak GenICam"] += 1;
    report["GenICam registers read"] += static_cast<std::uint64_t>(m_device->reads);
    if (genicam::criticalCount() > 0)
        report.find("GLib found a fault");
}

void GenicamSoakCamera::writeFromOutside()
{
    const std::string name = m_random.pick(
        {"Width", "Height", "OffsetX", "OffsetY", "BinningHorizontal", "BinningVertical", "Gain",
         "SubRegionOffsetX", "SubRegionOffsetY", "SubRegionWidth", "SubRegionHeight"});
    ZebCPP::Feature& feature = *m_camera->feature(name);
    std::int64_t minimum = 0;
    std::int64_t maximum = 0;
    std::int64_t increment = 0;
    if (feature.GetRange(minimum, maximum) != ZebErrorSuccess
        || feature.GetIncrement(increment) != ZebErrorSuccess)
        return;
    m_writes = takeAccount().writes; // the module's
    if (const auto value = m_random.onGrid(minimum, maximum, increment))
        m_camera->writeAsOtherClient(name, std::to_string(*value));
    m_device->takeWrites();
}

void GenicamSoakCamera::distort()
{
    m_device->fail(
        m_random.pick({ByteArrayDevice::None, ByteArrayDevice::Busy, ByteArrayDevice::AccessDenied,
                       ByteArrayDevice::WriteProtected, ByteArrayDevice::Timeout}));
}

void GenicamSoakCamera::lose(std::chrono::milliseconds callTime)
{
    m_device->fail(ByteArrayDevice::Timeout, callTime);
}

void GenicamSoakCamera::behave()
{
    m_device->fail(ByteArrayDevice::None);
}

#include "SoakCamera.h"

#include "genicam/ByteArrayDevice.h"
#include "genicam/GenicamCamera.h"

namespace {

std::shared_ptr<ByteArrayDevice> deviceThatCrops()
{
    auto device = std::make_shared<ByteArrayDevice>();
    device->reaction = [memory = device.get()](const std::string& feature) {
        if (feature.rfind("Binning", 0) != 0)
            return;
        for (const char* offset : {"OffsetX", "OffsetY"})
            memory->write(offset, 0);
        const auto crop = [=](const char* size, std::uint32_t room) {
            memory->write(size, std::min(memory->read(size), room));
        };
        crop("Width", 2592 / memory->read("BinningHorizontal") / 8 * 8);
        crop("Height", 1944 / memory->read("BinningVertical") / 2 * 2);
    };
    return device;
}

/// Over registers in memory. It crops its region when binning leaves less than that.
class GenicamSoakCamera : public SoakCamera
{
public:
    GenicamSoakCamera(Random& random, Report& report)
        : m_random(random)
        , m_report(report)
    {
        m_character.isHonest = m_character.isStrict = random.oneIn(2);
        m_character.hasThreads = true;
    }

    ~GenicamSoakCamera() override
    {
        if (genicam::criticalCount() > 0)
            m_report.find("GLib found a fault");
    }

    std::vector<ZebCPP::FeaturePtr> features() const override { return m_camera.features(); }
    std::size_t observerCount() const override { return m_camera.observerCount(); }
    void behave() override { m_device->fail(ByteArrayDevice::None); }

    QString text(const QString& feature, int region) const override
    {
        const std::string name = feature.toStdString();
        return region == selectedRegion ? QString::fromStdString(m_camera.readText(name))
                                        : QString::number(m_device->read(name, region));
    }

    sim::Snapshot state() const override
    {
        sim::Snapshot state;
        state.maximum = {text("WidthMax", selectedRegion).toLongLong(),
                         text("HeightMax", selectedRegion).toLongLong()};
        // Binning leaves multiple regions where they are.
        const bool isValid = state.maximum.width == 2592 && state.maximum.height == 1944;
        const auto regionOf = [&](const std::string& prefix, int number) -> sim::Snapshot::Region {
            const auto held
                = [&](const char* name) { return m_device->read(prefix + name, number); };
            return {held("OffsetX"), held("OffsetY"), held("Width"),
                    held("Height"),  number,          isValid};
        };
        state.hasMultipleRegions = m_device->read("MultipleRegionEnable") != 0;
        if (!state.hasMultipleRegions)
            state.regions = {regionOf("", 0)};
        for (int i = 0; state.hasMultipleRegions && i < ByteArrayDevice::regionCount; ++i) {
            if (m_device->read("SubRegionMode", i) != 0)
                state.regions.push_back(regionOf("SubRegion", i));
        }
        return state;
    }

    QStringList takeWrites(std::uint64_t&) override
    {
        QStringList writes = std::exchange(m_writes, {});
        for (const std::string& feature : m_device->takeWrites())
            writes << QString::fromStdString(feature) + "=";
        return writes;
    }

    void writeFromOutside() override
    {
        const auto name = m_random.pick<std::string>(
            {"Width", "Height", "OffsetX", "OffsetY", "BinningHorizontal", "BinningVertical",
             "Gain", "SubRegionOffsetX", "SubRegionOffsetY", "SubRegionWidth", "SubRegionHeight"});
        std::int64_t minimum = 0;
        std::int64_t maximum = 0;
        if (m_camera.feature(name)->GetRange(minimum, maximum) != ZebErrorSuccess)
            return;
        m_writes = takeWrites(m_report["SDK calls"]); // the module's
        const int step = maximum < 16 ? 1 : 8;
        const int steps = static_cast<int>(maximum - minimum) / step;
        const int more = step * m_random.below(std::max(steps, 0) + 1);
        m_camera.writeAsOtherClient(name, std::to_string(minimum + more));
        m_device->takeWrites();
    }

    void distort() override
    {
        m_device->fail(m_random.pick({ByteArrayDevice::None, ByteArrayDevice::Busy,
                                      ByteArrayDevice::AccessDenied,
                                      ByteArrayDevice::WriteProtected, ByteArrayDevice::Timeout}));
    }

    void lose(std::chrono::milliseconds callTime) override
    {
        m_isLost = true;
        m_device->fail(ByteArrayDevice::Timeout, callTime);
    }

private:
    Random& m_random;
    Report& m_report;
    const std::shared_ptr<ByteArrayDevice> m_device = deviceThatCrops();
    genicam::GenicamCamera m_camera{ByteArrayDevice::open(m_device), {"Brontax", [](bool) {}}};
    QStringList m_writes;
};

} // namespace

std::unique_ptr<SoakCamera> createGenicamCamera(Random& random, Report& report)
{
    return std::make_unique<GenicamSoakCamera>(random, report);
}

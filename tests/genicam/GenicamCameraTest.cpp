#include "genicam/GenicamCamera.h"
#include "ByteArrayDevice.h"
#include "DataTable.h"

#include <QElapsedTimer>
#include <QtTest>

#include <atomic>
#include <functional>

using genicam::GenicamCamera;

namespace {

enum Address : std::uint32_t {
    UserNumber = 0x44,
    TriggerSource = 0x4c,
    Masked = 0x54,
    GainLock = 0x58,
    Width = 0x100,
    Height = 0x104,
    BinningHorizontal = 0x110,
    BinningVertical = 0x114,
    PixelFormat = 0x120,
    Exposure = 0x124,
    RegionWidth = 0x210,
};

struct OpenCamera
{
    OpenCamera()
        : device(DESCRIPTION_FILE)
    {
        device.write(Width, 2592);
        device.write(Height, 1944);
        device.write(BinningHorizontal, 1);
        device.write(BinningVertical, 1);
        device.write(PixelFormat, 0x01080001);
        device.write(Exposure, 100);
        device.write(TriggerSource, 99);
        camera = std::make_unique<GenicamCamera>(
            device.reference(), GenicamCamera::Options{"Prefix", [this](bool is) { isGone = is; }});
    }

    ZebCPP::Feature& operator[](const char* name) const { return *camera->feature(name); }
    std::int64_t integer(const char* name) const
    {
        std::int64_t value = -1;
        (*this)[name].GetValue(value);
        return value;
    }
    std::int64_t maximum(const char* name) const
    {
        std::int64_t minimum = -1;
        std::int64_t maximum = -1;
        (*this)[name].GetRange(minimum, maximum);
        return maximum;
    }

    ByteArrayDevice device;
    std::atomic<bool> isGone{false};
    std::unique_ptr<GenicamCamera> camera;
};

using TextGetter = ZebErrorType (ZebCPP::Feature::*)(char*, std::uint32_t&);

QString text(ZebCPP::Feature& feature, TextGetter getter)
{
    std::uint32_t length = 0;
    if ((feature.*getter)(nullptr, length) != ZebErrorSuccess)
        return "refused";
    QByteArray buffer(int(length), '?');
    std::uint32_t shorter = length - 1;
    if ((feature.*getter)(buffer.data(), shorter) != ZebErrorBadParameter)
        return "written beyond its end";
    return (feature.*getter)(buffer.data(), length) == ZebErrorSuccess ? buffer.constData()
                                                                       : "refused";
}

/// Counts calls, and does something in each.
struct Observer : ZebCPP::IFeatureObserver
{
    void FeatureChanged(const ZebCPP::FeaturePtr& feature) override
    {
        ++calls;
        if (reaction)
            reaction(feature);
    }
    std::atomic<int> calls{0};
    std::function<void(const ZebCPP::FeaturePtr&)> reaction;
};

} // namespace

class GenicamCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(genicam::criticalCount(), 0); }

    void describes_data()
    {
        const DataTable row(
            [](const char* name, ZebFeatureDataType type, int flags, const char* category) {
                const OpenCamera c;
                ZebFeatureDataType actualType{};
                ZebFeatureFlagsType actualFlags{};
                QCOMPARE(c[name].GetDataType(actualType), ZebErrorSuccess);
                QCOMPARE(c[name].GetFlags(actualFlags), ZebErrorSuccess);
                QCOMPARE(actualType, type);
                QCOMPARE(int(actualFlags), flags);
                QCOMPARE(text(c[name], &ZebCPP::Feature::GetCategory), QString(category));
                QCOMPARE(text(c[name], &ZebCPP::Feature::GetName), QString(name));
            });
        const char* device = "/DeviceControl";
        const char* format = "/ImageFormatControl";
        row("text", "DeviceVendorName", ZebFeatureDataString, 1, device);
        row("integer", "Gain", ZebFeatureDataInt, 3, device);
        row("formula", "WidthMax", ZebFeatureDataInt, 1, format);
        row("converter", "ExposureTime", ZebFeatureDataFloat, 3, format);
        row("switch", "ReverseX", ZebFeatureDataBool, 3, format);
        row("choice", "PixelFormat", ZebFeatureDataEnum, 3, format);
        row("command", "Timestamp", ZebFeatureDataCommand, 2, device);
        row("bytes", "Raw", ZebFeatureDataRaw, 3, device);
        row("below two categories", "SubRegionStatus", ZebFeatureDataEnum, 1,
            "/ImageFormatControl/MultipleRegions");
    }
    void describes() { runRow(); }

    void tellsTexts()
    {
        const OpenCamera c;
        using F = ZebCPP::Feature;
        QCOMPARE(text(c["DeviceVendorName"], &F::GetValue), QString("Prefix ()"));
        QCOMPARE(text(c["Gain"], &F::GetDisplayName), QString("Sensor gain"));
        QCOMPARE(text(c["Gain"], &F::GetToolTip), QString("Gain of the sensor"));
        QCOMPARE(text(c["Gain"], &F::GetDescription), QString("What the sensor amplifies."));
        QCOMPARE(text(c["Gain"], &F::GetUnit), QString("dB"));
        QCOMPARE(text(c["ExposureTime"], &F::GetUnit), QString("us"));
        QCOMPARE(text(c["Gain"], &F::GetRepresentation), QString("Logarithmic"));
        ZebFeatureVisibilityType visibility{};
        c["Gain"].GetVisibility(visibility);
        QCOMPARE(visibility, ZebFeatureVisibilityExpert);
    }

    void refusesWhatDoesNotFit_data()
    {
        const DataTable row([](const char* name,
                               const std::function<ZebErrorType(ZebCPP::Feature&)>& write,
                               ZebErrorType code) {
            const OpenCamera c;
            const int before = c.device.writes();
            QCOMPARE(write(c[name]), code);
            QCOMPARE(c.device.writes() > before, code == ZebErrorSuccess);
        });
        const auto integer = [](std::int64_t value) {
            return [value](ZebCPP::Feature& f) { return f.SetValue(value); };
        };
        const auto number = [](double value) {
            return [value](ZebCPP::Feature& f) { return f.SetValue(value); };
        };
        const auto entry = [](const char* value) {
            return [value](ZebCPP::Feature& f) { return f.SetValue(value); };
        };
        row("on the grid", "Width", integer(1616), ZebErrorSuccess);
        row("off the grid", "Width", integer(1617), ZebErrorBadParameter);
        row("below", "Width", integer(8), ZebErrorBadParameter);
        row("above a dependent maximum", "OffsetX", integer(8), ZebErrorBadParameter);
        row("without bounds", "UserNumber", integer(4000000000), ZebErrorSuccess);
        row("with absurd bounds", "AbsurdNumber", integer(7), ZebErrorSuccess);
        row("number as float", "Width", number(640), ZebErrorBadParameter);
        row("float", "ExposureTime", number(20.5), ZebErrorSuccess);
        row("float below", "ExposureTime", number(9.9), ZebErrorBadParameter);
        row("no number", "ExposureTime", number(qQNaN()), ZebErrorBadParameter);
        row("entry", "PixelFormat", entry("Mono12"), ZebErrorSuccess);
        row("entry by number", "PixelFormat", integer(0x01100005), ZebErrorSuccess);
        row("unknown entry", "PixelFormat", entry("Mono13"), ZebErrorBadParameter);
        row("unknown number", "PixelFormat", integer(4), ZebErrorBadParameter);
        row("read only", "SubRegionStatus", entry("Valid"), ZebErrorInvalidAccess);
        row("formula", "WidthMax", integer(800), ZebErrorInvalidAccess);
    }
    void refusesWhatDoesNotFit() { runRow(); }

    void followsBounds()
    {
        const OpenCamera c;
        QCOMPARE(c.maximum("OffsetX"), 0);
        QCOMPARE(c["Width"].SetValue(std::int64_t{1296}), ZebErrorSuccess);
        QCOMPARE(c.maximum("OffsetX"), 1296);
        QCOMPARE(c["BinningHorizontal"].SetValue(std::int64_t{2}), ZebErrorSuccess);
        QCOMPARE(c.integer("WidthMax"), 1296);
        QCOMPARE(c.maximum("OffsetX"), 0);
        std::int64_t minimum = 0;
        std::int64_t maximum = 0;
        QCOMPARE(c["AbsurdNumber"].GetRange(minimum, maximum), ZebErrorNotFound);
        QCOMPARE(c["UserNumber"].GetRange(minimum, maximum), ZebErrorSuccess);
        double exposure = 0.0;
        QCOMPARE(c["ExposureTime"].GetValue(exposure), ZebErrorSuccess);
        QCOMPARE(exposure, 10.0);
    }

    void listsEntries()
    {
        const OpenCamera c;
        std::array<const char*, 3> names{};
        std::array<std::int64_t, 3> numbers{};
        std::uint32_t count = 3;
        QCOMPARE(c["TriggerSource"].GetValues(names.data(), count), ZebErrorSuccess);
        QCOMPARE(QString(names[0]) + names[1] + names[2], QString("Line1Line0Software"));
        QCOMPARE(c["TriggerSource"].GetValues(numbers.data(), count), ZebErrorSuccess);
        QCOMPARE(numbers[2], 7);
        QCOMPARE(c.integer("TriggerSource"), 99);
        QCOMPARE(text(c["TriggerSource"], &ZebCPP::Feature::GetValue), QString("refused"));

        bool available = false;
        QCOMPARE(c["PixelFormat"].IsValueAvailable("RGB8", available), ZebErrorSuccess);
        QVERIFY(available);
        c["BinningHorizontal"].SetValue(std::int64_t{2});
        c["PixelFormat"].IsValueAvailable("RGB8", available);
        QVERIFY(!available);
        QCOMPARE(c["PixelFormat"].SetValue("RGB8"), ZebErrorBadParameter);
    }

    void selectsRegions()
    {
        const OpenCamera c;
        std::uint32_t count = 0;
        c["SubRegionSelector"].GetSelectedFeatures(nullptr, count);
        QCOMPARE(count, 6U);
        std::array<ZebCPP::FeaturePtr, 6> selected;
        c["SubRegionSelector"].GetSelectedFeatures(selected.data(), count);
        QCOMPARE(text(*selected[0], &ZebCPP::Feature::GetName), QString("SubRegionMode"));
        for (int region = 0; region < 4; ++region) {
            c["SubRegionSelector"].SetValue(std::int64_t{region});
            QCOMPARE(c["SubRegionWidth"].SetValue(std::int64_t{160 + 8 * region}), ZebErrorSuccess);
        }
        for (int region = 0; region < 4; ++region)
            QCOMPARE(c.device.read(RegionWidth + 0x20U * std::uint32_t(region)),
                     std::uint32_t(160 + 8 * region));
        c["SubRegionSelector"].SetValue("Region1");
        QCOMPARE(c.integer("SubRegionWidth"), 168);
    }

    void keepsTheOtherBits()
    {
        OpenCamera c;
        c.integer("Masked");
        c.device.write(Masked, 0xaabbccdd);
        QCOMPARE(c["Masked"].SetValue(std::int64_t{0x11}), ZebErrorSuccess);
        QCOMPARE(c.device.read(Masked), 0xaa11ccddU);
    }

    void readsWhatTheCameraHolds()
    {
        OpenCamera c;
        c.device.afterWrite([&c](std::uint32_t address) {
            if (address == UserNumber)
                c.device.write(Width, 640);
        });
        QCOMPARE(c.integer("Width"), 2592);
        QCOMPARE(c.maximum("OffsetX"), 0);
        c["UserNumber"].SetValue(std::int64_t{1});
        QCOMPARE(c.integer("Width"), 640);
        QCOMPARE(c.maximum("OffsetX"), 1952);
        c.device.write(Width, 1296); // by another client, and nobody observes
        QCOMPARE(c.maximum("OffsetX"), 1952);
        QTest::qWait(1100);
        QCOMPARE(c.maximum("OffsetX"), 1296);
    }

    void notifies_data()
    {
        using Change = std::function<void(OpenCamera&)>;
        const DataTable row([](const Change& change, const QStringList& touched, bool isAtOnce) {
            OpenCamera c;
            c.device.afterWrite([&c](std::uint32_t address) {
                if (address == UserNumber) // nothing in the description says so
                    c.device.write(Width, 640);
            });
            const auto observer = std::make_shared<Observer>();
            QStringList told;
            observer->reaction = [&](const ZebCPP::FeaturePtr& feature) {
                told << text(*feature, &ZebCPP::Feature::GetName);
                std::int64_t value = 0; // what is read is no news of its own
                feature->GetValue(value);
            };
            for (const ZebCPP::FeaturePtr& feature : c.camera->features())
                feature->RegisterObserver(observer);
            c.integer("Width"); // otherwise nobody knows that it will be another
            change(c);
            QTest::qWait(isAtOnce ? 200 : 1300);
            const int calls = observer->calls;
            for (const ZebCPP::FeaturePtr& feature : c.camera->features())
                feature->UnregisterObserver(observer);
            c.device.write(Width, 320);
            c["Height"].SetValue(std::int64_t{400});
            QTest::qWait(100);
            QCOMPARE(int(observer->calls), calls);
            QCOMPARE(told, touched);
        });
        const auto set = [](const char* name, std::int64_t value) -> Change {
            return [=](OpenCamera& c) { c[name].SetValue(value); };
        };
        row("of a write and a bound", set("Width", 1296), {"Width", "OffsetX"}, true);
        row("of bounds of bounds, formulas and availability", set("BinningHorizontal", 2),
            {"WidthMax", "Width", "OffsetX", "BinningHorizontal", "PixelFormat", "SubRegionOffsetX",
             "SubRegionWidth"},
            true);
        row("of what is selected", set("SubRegionSelector", 2),
            {"SubRegionSelector", "SubRegionMode", "SubRegionStatus", "SubRegionOffsetX",
             "SubRegionOffsetY", "SubRegionWidth", "SubRegionHeight"},
            true);
        row("of the camera's own reset", set("UserNumber", 2), {"UserNumber", "Width", "OffsetX"},
            false);
        row(
            "of a lock",
            [](OpenCamera& c) {
                QTest::qWait(1100);
                c.device.write(GainLock, 1);
            },
            {"Gain"}, false);
        row(
            "of another client", [](OpenCamera& c) { c.device.write(Width, 1616); },
            {"Width", "OffsetX"}, false);
    }
    void notifies() { runRow(); }

    void letsObserversGoFromWithin()
    {
        const OpenCamera c;
        const auto observer = std::make_shared<Observer>();
        const auto other = std::make_shared<Observer>();
        observer->reaction = [&](const ZebCPP::FeaturePtr& feature) {
            feature->UnregisterObserver(observer);
            feature->UnregisterObserver(other);
        };
        QCOMPARE(c["Width"].RegisterObserver(observer), ZebErrorSuccess);
        QCOMPARE(c["Width"].RegisterObserver(observer), ZebErrorInvalidAccess);
        QCOMPARE(c["Width"].RegisterObserver(other), ZebErrorSuccess);
        c["Width"].SetValue(std::int64_t{640});
        c["Width"].SetValue(std::int64_t{320});
        QTRY_COMPARE(int(observer->calls), 1);
        QTest::qWait(100);
        QCOMPARE(observer->calls + other->calls, 1);
    }

    void tellsTheCamerasRefusals_data()
    {
        const DataTable row([](ByteArrayDevice::Failure failure, ZebErrorType code) {
            OpenCamera c;
            c.device.fail(failure);
            QCOMPARE(c["Width"].SetValue(std::int64_t{640}), code);
            QVERIFY(!c.camera->isGone());
            c.device.fail(ByteArrayDevice::None);
            QCOMPARE(c.integer("Width"), 2592);
        });
        row("busy", ByteArrayDevice::Busy, ZebErrorResources);
        row("access denied", ByteArrayDevice::AccessDenied, ZebErrorInvalidAccess);
        row("write-protected", ByteArrayDevice::WriteProtected, ZebErrorInvalidAccess);
    }
    void tellsTheCamerasRefusals() { runRow(); }

    void stallsOnceForALostCamera()
    {
        OpenCamera c;
        c.device.fail(ByteArrayDevice::Timeout, std::chrono::milliseconds(400));
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 50; ++i) {
            QCOMPARE(c["Width"].SetValue(std::int64_t{640}), ZebErrorTimeout);
            QCOMPARE(c.integer("Height"), -1);
        }
        QVERIFY2(timer.elapsed() < 700, qPrintable(QString::number(timer.elapsed())));
        QTRY_VERIFY(c.isGone);
        const auto observer = std::make_shared<Observer>();
        c["Width"].RegisterObserver(observer);
        c.device.fail(ByteArrayDevice::None);
        QTRY_VERIFY(!c.isGone);
        QTRY_VERIFY(observer->calls > 0);
        QCOMPARE(c.integer("Width"), 2592);

        // Whoever comes while another thread is stuck waits for a moment only.
        c.device.fail(ByteArrayDevice::Timeout, std::chrono::seconds(2));
        std::thread stuck([height = c.camera->feature("Height")] {
            std::int64_t ignored = 0;
            height->GetValue(ignored);
        });
        QTest::qWait(50);
        timer.start();
        QCOMPARE(c.integer("Width"), -1);
        QVERIFY(timer.elapsed() < 1000);
        const ZebCPP::FeaturePtr width = c.camera->feature("Width");
        timer.start();
        c.camera.reset();
        QVERIFY(timer.elapsed() < 500);
        std::int64_t value = 0;
        QCOMPARE(width->GetValue(value), ZebErrorBadHandle);
        stuck.join();
    }
};

QTEST_GUILESS_MAIN(GenicamCameraTest)
#include "GenicamCameraTest.moc"

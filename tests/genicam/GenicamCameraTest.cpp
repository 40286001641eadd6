#include "genicam/GenicamCamera.h"
#include "ByteArrayDevice.h"
#include "DataTable.h"

#include <QElapsedTimer>
#include <QtTest>

#include <thread>

using genicam::GenicamCamera;
using ZebCPP::Feature;

namespace {

struct OpenCamera
{
    Feature& operator[](const char* name) const { return *camera->feature(name); }
    std::int64_t integer(const char* name) const
    {
        std::int64_t value = -1;
        (*this)[name].GetValue(value);
        return value;
    }
    ZebErrorType set(const char* name, std::int64_t value) const
    {
        return (*this)[name].SetValue(value);
    }
    std::int64_t maximum(const char* name) const
    {
        std::int64_t minimum = -1;
        std::int64_t maximum = -1;
        (*this)[name].GetRange(minimum, maximum);
        return maximum;
    }
    /// The description says nothing of it.
    void resetWidthAfterUserNumber() const
    {
        device->reaction = [memory = device.get()](const std::string& feature) {
            if (feature == "UserNumber")
                memory->write("Width", 640);
        };
    }

    std::shared_ptr<ByteArrayDevice> device = std::make_shared<ByteArrayDevice>();
    std::atomic<bool> isGone{false};
    std::unique_ptr<GenicamCamera> camera = std::make_unique<GenicamCamera>(
        ByteArrayDevice::open(device),
        GenicamCamera::Options{"Prefix", [this](bool is) { isGone = is; }});
};

using TextGetter = ZebErrorType (Feature::*)(char*, std::uint32_t&);

QString text(Feature& feature, TextGetter getter)
{
    std::uint32_t length = 0;
    (feature.*getter)(nullptr, length);
    QByteArray buffer(int(length), '?');
    std::uint32_t shorter = length - 1;
    const bool isCut = (feature.*getter)(buffer.data(), shorter) == ZebErrorSuccess;
    const bool isRead = (feature.*getter)(buffer.data(), length) == ZebErrorSuccess;
    return isCut ? "written beyond its end" : isRead ? buffer.constData() : "refused";
}

/// Counts calls, and does something in each.
struct Observer : ZebCPP::IFeatureObserver
{
    void FeatureChanged(const ZebCPP::FeaturePtr& feature) override
    {
        ++calls;
        reaction(*feature);
    }
    std::atomic<int> calls{0};
    std::function<void(Feature&)> reaction = [](Feature&) {};
};

} // namespace

class GenicamCameraTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(genicam::criticalCount(), 0); }

    void describes()
    {
        const OpenCamera c;
        const std::tuple<const char*, ZebFeatureDataType, int> features[]
            = {{"DeviceVendorName", ZebFeatureDataString, 1},
               {"Gain", ZebFeatureDataInt, 3},
               {"WidthMax", ZebFeatureDataInt, 1},
               {"ExposureTime", ZebFeatureDataFloat, 3},
               {"ReverseX", ZebFeatureDataBool, 3},
               {"Timestamp", ZebFeatureDataCommand, 2},
               {"Raw", ZebFeatureDataRaw, 3}};
        for (const auto& [name, type, flags] : features) {
            ZebFeatureDataType actualType{};
            ZebFeatureFlagsType actualFlags{};
            c[name].GetDataType(actualType);
            c[name].GetFlags(actualFlags);
            QVERIFY2(actualType == type && int(actualFlags) == flags, name);
        }
    }

    void tellsTexts()
    {
        const OpenCamera c;
        QCOMPARE(text(c["DeviceVendorName"], &Feature::GetValue), QString("Prefix ()"));
        QCOMPARE(text(c["SubRegionStatus"], &Feature::GetCategory),
                 QString("/ImageFormatControl/MultipleRegions"));
        const std::pair<TextGetter, const char*> texts[]
            = {{&Feature::GetName, "Gain"},
               {&Feature::GetDisplayName, "Sensor gain"},
               {&Feature::GetToolTip, "Gain of the sensor"},
               {&Feature::GetDescription, "What the sensor amplifies."},
               {&Feature::GetUnit, "dB"},
               {&Feature::GetRepresentation, "Logarithmic"}};
        for (const auto& [getter, expected] : texts)
            QCOMPARE(text(c["Gain"], getter), QString(expected));
        ZebFeatureVisibilityType visibility{};
        c["Gain"].GetVisibility(visibility);
        QCOMPARE(visibility, ZebFeatureVisibilityExpert);
    }

    void refusesWhatDoesNotFit_data()
    {
        using Write = std::function<ZebErrorType(Feature&)>;
        const DataTable row([](const char* name, const Write& write, ZebErrorType code) {
            const OpenCamera c;
            QCOMPARE(write(c[name]), code);
            QCOMPARE(!c.device->takeWrites().empty(), code == ZebErrorSuccess);
        });
        const auto set = [](auto value) -> Write {
            return [value](Feature& feature) { return feature.SetValue(value); };
        };
        using Int = std::int64_t;
        row("on the grid", "Width", set(Int{1616}), ZebErrorSuccess);
        row("off the grid", "Width", set(Int{1617}), ZebErrorBadParameter);
        row("above a dependent maximum", "OffsetX", set(Int{8}), ZebErrorBadParameter);
        row("without bounds", "UserNumber", set(Int{4000000000}), ZebErrorSuccess);
        row("with absurd bounds", "AbsurdNumber", set(Int{7}), ZebErrorSuccess);
        row("number as float", "Width", set(640.0), ZebErrorBadParameter);
        row("float", "ExposureTime", set(20.5), ZebErrorSuccess);
        row("float below", "ExposureTime", set(9.9), ZebErrorBadParameter);
        row("no number", "ExposureTime", set(qQNaN()), ZebErrorBadParameter);
        row("entry", "PixelFormat", set("Mono12"), ZebErrorSuccess);
        row("entry by number", "PixelFormat", set(Int{0x01100005}), ZebErrorSuccess);
        row("unknown entry", "PixelFormat", set("Mono13"), ZebErrorBadParameter);
        row("unknown number", "PixelFormat", set(Int{4}), ZebErrorBadParameter);
        row("float without bounds", "Level", set(-1e30), ZebErrorSuccess);
        row("formula", "WidthMax", set(Int{800}), ZebErrorInvalidAccess);
    }
    void refusesWhatDoesNotFit() { runRow(); }

    void followsBounds()
    {
        const OpenCamera c;
        c.set("Width", 1296);
        QCOMPARE(c.maximum("OffsetX"), 1296);
        c.set("BinningHorizontal", 2);
        QCOMPARE(c.integer("WidthMax"), 1296);
        QCOMPARE(c.maximum("OffsetX"), 0);
        std::int64_t bound = 0;
        QCOMPARE(c["AbsurdNumber"].GetRange(bound, bound), ZebErrorNotFound);
        QCOMPARE(c["UserNumber"].GetRange(bound, bound), ZebErrorSuccess);
        double real = 0.0;
        QCOMPARE(c["Level"].GetRange(real, real), ZebErrorSuccess);
        QCOMPARE(c["ExposureTime"].GetValue(real), ZebErrorSuccess);
        QCOMPARE(real, 10.0);
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
        QCOMPARE(text(c["TriggerSource"], &Feature::GetValue), QString("refused"));

        bool available = false;
        c["PixelFormat"].IsValueAvailable("RGB8", available);
        QVERIFY(available);
        c.set("BinningHorizontal", 2);
        c["PixelFormat"].IsValueAvailable("RGB8", available);
        QVERIFY(!available);
        QCOMPARE(c["PixelFormat"].SetValue("RGB8"), ZebErrorBadParameter);
    }

    void selectsRegions()
    {
        const OpenCamera c;
        std::array<ZebCPP::FeaturePtr, 6> selected;
        std::uint32_t count = 6;
        c["SubRegionSelector"].GetSelectedFeatures(selected.data(), count);
        QCOMPARE(count, 6U);
        QCOMPARE(text(*selected[0], &Feature::GetName), QString("SubRegionMode"));
        c["SubRegionSelector"].SetValue("Region3");
        c.set("SubRegionWidth", 168);
        QCOMPARE(c.device->read("SubRegionWidth", 3), 168U);
    }

    void readsWhatTheCameraHolds()
    {
        const OpenCamera c;
        c.resetWidthAfterUserNumber();
        QCOMPARE(c.integer("Width"), 2592);
        QCOMPARE(c.maximum("OffsetX"), 0);
        c.set("UserNumber", 1);
        QCOMPARE(c.integer("Width"), 640);
        QCOMPARE(c.maximum("OffsetX"), 1952);
        c.device->write("Width", 1296); // by another client, and nobody observes
        QCOMPARE(c.maximum("OffsetX"), 1952);
        QTest::qWait(1100);
        QCOMPARE(c.maximum("OffsetX"), 1296);

        c.integer("Masked");
        c.device->write("Masked", 0xaabbccdd); // of which the feature is eight bits
        c.set("Masked", 0x11);
        QCOMPARE(c.device->read("Masked"), 0xaa11ccddU);
    }

    void livesWithoutPartsOfTheDescription()
    {
        const OpenCamera c{std::make_shared<ByteArrayDevice>("TLParamsLocked")};
        QCOMPARE(c.integer("Width"), 2592);
    }

    void notifies_data()
    {
        using Change = std::function<void(OpenCamera&)>;
        const DataTable row([](const Change& change, const QStringList& touched) {
            OpenCamera c;
            c.resetWidthAfterUserNumber();
            const auto observer = std::make_shared<Observer>();
            QStringList told;
            observer->reaction = [&](Feature& feature) {
                told << text(feature, &Feature::GetName);
                std::int64_t value = 0; // what is read is no news of its own
                feature.GetValue(value);
            };
            for (const ZebCPP::FeaturePtr& feature : c.camera->features())
                feature->RegisterObserver(observer);
            change(c);
            QTRY_VERIFY(observer->calls >= touched.size());
            QTest::qWait(100);
            const int calls = observer->calls;
            for (const ZebCPP::FeaturePtr& feature : c.camera->features())
                feature->UnregisterObserver(observer);
            c.device->write("Width", 320);
            c.set("Height", 400);
            QTest::qWait(100);
            QCOMPARE(int(observer->calls), calls);
            QCOMPARE(told, touched);
        });
        const auto set = [](const char* name, std::int64_t value) -> Change {
            return [=](OpenCamera& c) { c.set(name, value); };
        };
        const auto hold = [](const char* name, std::uint32_t value) -> Change {
            return [=](OpenCamera& c) { c.device->write(name, value); };
        };
        row("of bounds of bounds, formulas and availability", set("BinningHorizontal", 2),
            {"WidthMax", "Width", "OffsetX", "BinningHorizontal", "PixelFormat", "SubRegionOffsetX",
             "SubRegionWidth"});
        row("of what is selected", set("SubRegionSelector", 2),
            {"SubRegionSelector", "SubRegionMode", "SubRegionStatus", "SubRegionOffsetX",
             "SubRegionOffsetY", "SubRegionWidth", "SubRegionHeight"});
        row("of the camera's own reset", set("UserNumber", 2), {"UserNumber", "Width", "OffsetX"});
        row("of a lock", hold("GainLock", 1), {"Gain"});
        row("of another client", hold("Width", 1616), {"Width", "OffsetX"});
    }
    void notifies() { runRow(); }

    /// Back at what was known before the write, and nobody has read the value since.
    void tellsOfResetsThatFollowAWrite()
    {
        const OpenCamera c;
        const auto observer = std::make_shared<Observer>();
        c["Width"].RegisterObserver(observer);
        c.set("Width", 640);
        c.device->write("Width", 2592);
        QTRY_COMPARE(int(observer->calls), 2);
    }

    void letsObserversGoFromWithin()
    {
        const OpenCamera c;
        const auto observer = std::make_shared<Observer>();
        const auto other = std::make_shared<Observer>();
        observer->reaction = [&](Feature& feature) {
            feature.UnregisterObserver(observer);
            feature.UnregisterObserver(other);
        };
        QCOMPARE(c["Width"].RegisterObserver(observer), ZebErrorSuccess);
        QCOMPARE(c["Width"].RegisterObserver(observer), ZebErrorInvalidAccess);
        QCOMPARE(c["Width"].RegisterObserver(other), ZebErrorSuccess);
        c.set("Width", 640);
        c.set("Width", 320);
        QTRY_COMPARE(int(observer->calls), 1);
        QTest::qWait(100);
        QCOMPARE(observer->calls + other->calls, 1);
    }

    void tellsTheCamerasRefusals()
    {
        const OpenCamera c;
        const std::pair<ByteArrayDevice::Failure, ZebErrorType> refusals[]
            = {{ByteArrayDevice::Busy, ZebErrorResources},
               {ByteArrayDevice::AccessDenied, ZebErrorInvalidAccess},
               {ByteArrayDevice::WriteProtected, ZebErrorInvalidAccess}};
        for (const auto& [failure, code] : refusals) {
            c.device->fail(failure);
            QCOMPARE(c.set("Width", 640), code);
            QVERIFY(!c.camera->isGone());
            c.device->fail(ByteArrayDevice::None);
            QCOMPARE(c.integer("Width"), 2592);
        }
    }

    void looksNoFurtherThanTheFirstFailure()
    {
        const OpenCamera c;
        const auto observer = std::make_shared<Observer>();
        for (const ZebCPP::FeaturePtr& feature : c.camera->features())
            feature->RegisterObserver(observer);
        c.device->fail(ByteArrayDevice::Busy);
        const int reads = c.device->reads;
        QTRY_VERIFY(c.device->reads > reads);
        QTest::qWait(100);
        QVERIFY(c.device->reads <= reads + 3);
        c.device->fail(ByteArrayDevice::None);
        c.device->write("Width", 640);
        QTRY_VERIFY(observer->calls > 0);
    }

    void stallsOnceForALostCamera()
    {
        OpenCamera c;
        c.device->fail(ByteArrayDevice::Timeout, std::chrono::milliseconds(400));
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 50; ++i) {
            QCOMPARE(c.set("Width", 640), ZebErrorTimeout);
            QCOMPARE(c.integer("Height"), -1);
        }
        QVERIFY2(timer.elapsed() < 700, qPrintable(QString::number(timer.elapsed())));
        QTRY_VERIFY(c.isGone);
        const auto observer = std::make_shared<Observer>();
        c["Width"].RegisterObserver(observer);
        c.device->fail(ByteArrayDevice::None);
        QTRY_VERIFY(!c.isGone);
        QTRY_VERIFY(observer->calls > 0);
        QCOMPARE(c.integer("Width"), 2592);

        // Whoever comes while another thread is stuck waits for a moment only.
        c.device->fail(ByteArrayDevice::Timeout, std::chrono::seconds(2));
        std::thread stuck([height = c.camera->feature("Height")] {
            std::int64_t ignored = 0;
            height->GetValue(ignored);
        });
        QTest::qWait(50);
        timer.start();
        QCOMPARE(c.integer("Width"), -1);
        QVERIFY(timer.elapsed() < 1000);
        const ZebCPP::FeaturePtr kept = c.camera->feature("Width");
        timer.start();
        c.camera.reset();
        QVERIFY(timer.elapsed() < 500);
        std::int64_t value = 0;
        QCOMPARE(kept->GetValue(value), ZebErrorBadHandle);
        stuck.join();
    }
};

QTEST_GUILESS_MAIN(GenicamCameraTest)
#include "GenicamCameraTest.moc"

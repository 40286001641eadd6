#include "models/FeatureBlocks.h"

#include "Reaction.h"

#include <algorithm>
#include <utility>

namespace sim {

FeatureDescriptions joined(std::initializer_list<FeatureDescriptions> blocks)
{
    FeatureDescriptions all;
    for (const FeatureDescriptions& block : blocks)
        all.insert(all.end(), block.begin(), block.end());
    return all;
}

FeatureDescriptions without(FeatureDescriptions features, const std::string& name)
{
    features.erase(std::remove_if(features.begin(), features.end(),
                                  [&](const FeatureDescription& f) { return f.name == name; }),
                   features.end());
    return features;
}

FeatureDescriptions identity(const std::string& vendor, const std::string& modelName)
{
    const char* category = "/DeviceControl";
    return {
        stringFeature("DeviceVendorName", vendor)
            .in(category)
            .shown("Device Vendor Name")
            .describedBy("Name of the manufacturer of the device.")
            .readOnly(),
        stringFeature("DeviceModelName", modelName)
            .in(category)
            .shown("Device Model Name")
            .describedBy("Model of the device.")
            .readOnly(),
        stringFeature("DeviceSerialNumber", "SIM-0001")
            .in(category)
            .shown("Device Serial Number")
            .visibleTo(ZebFeatureVisibilityExpert)
            .readOnly(),
        stringFeature("DeviceUserID", "Simulated camera")
            .in(category)
            .shown("Device User ID")
            .describedBy("User-programmable device identifier. Kept by the device."),
    };
}

FeatureDescriptions acquisition()
{
    const char* category = "/AcquisitionControl";
    return {
        enumFeature("AcquisitionMode", {"Continuous", "SingleFrame", "MultiFrame"})
            .in(category)
            .shown("Acquisition Mode")
            .describedBy("Number of frames that an acquisition captures.")
            .lockedWhileStreaming(),
        commandFeature("AcquisitionStart", [](Reaction& camera) { camera.setStreaming(true); })
            .in(category)
            .shown("Acquisition Start")
            .describedBy("Starts the acquisition.")
            .writableIf([](const State& camera) { return !camera.isStreaming(); }),
        commandFeature("AcquisitionStop", [](Reaction& camera) { camera.setStreaming(false); })
            .in(category)
            .shown("Acquisition Stop")
            .describedBy("Stops the acquisition at the end of the current frame."),
        booleanFeature("AcquisitionFrameRateEnable")
            .in(category)
            .shown("Acquisition Frame Rate Enable")
            .describedBy("Controls whether the frame rate can be set."),
        floatFeature("AcquisitionFrameRate", 30.0)
            .in(category)
            .shown("Acquisition Frame Rate")
            .describedBy("Rate at which frames are captured. Writable when enabled.")
            .measuredIn("Hz")
            .between(FloatRange(0.1, 200.0, 0.1))
            .writableIf(
                [](const State& camera) { return camera.isOn("AcquisitionFrameRateEnable"); }),
    };
}

FeatureDescriptions exposureTime(const std::string& name)
{
    const char* category = "/AcquisitionControl";
    return {
        enumFeature("ExposureAuto", {"Off", "Once", "Continuous"})
            .in(category)
            .shown("Exposure Auto")
            .describedBy("Sets the automatic exposure mode."),
        floatFeature(name, 10000.0)
            .in(category)
            .shown("Exposure Time")
            .describedBy("Exposure time in microseconds. Read-only under automatic exposure.")
            .measuredIn("us")
            .represented("Logarithmic")
            .between(FloatRange(10.0, 10000000.0))
            .writableIf([](const State& camera) { return camera.text("ExposureAuto") == "Off"; }),
    };
}

FeatureDescriptions showcase()
{
    const auto gainIsFree = [](const State& camera) { return camera.text("GainAuto") == "Off"; };
    const auto twiceTheCounter
        = [](const State& camera) -> Value { return camera.integer("UserCounter") * 2; };
    FeatureDescription lutValue = integerFeature("LUTValue", 0)
                                      .in("/LUTControl")
                                      .between(IntegerRange(0, 4095))
                                      .selectedBy("LUTIndex")
                                      .visibleTo(ZebFeatureVisibilityExpert);
    constexpr std::int64_t lutEntries = 256;
    for (std::int64_t entry = 0; entry < lutEntries; ++entry)
        lutValue.startingWith(entry, entry * 16);
    return {
        enumFeature("GainAuto", {"Off", "Once", "Continuous"}).in("/AnalogControl"),
        floatFeature("Gain", 0.0)
            .in("/AnalogControl")
            .describedBy("Amplification of the signal. Writable when Gain Auto is off.")
            .measuredIn("dB")
            .between(FloatRange(0.0, 24.0, 0.1))
            .writableIf(gainIsFree),
        integerFeature("BlackLevel", 16)
            .in("/AnalogControl")
            .represented("Linear")
            .between(IntegerRange(0, 255)),
        floatFeature("Gamma", 1.0)
            .in("/AnalogControl")
            .represented("Logarithmic")
            .between(FloatRange(0.25, 4.0)),
        integerFeature("UserCounter", 1).in("/UserControl").between(IntegerRange(0, 1000000)),
        integerFeature("UserCounterDoubled")
            .in("/UserControl")
            .computedAs(twiceTheCounter)
            .changingByItself(),
        integerFeature("UserRegister", 0xC0FFEE)
            .in("/UserControl")
            .represented("HexNumber")
            .between(IntegerRange(0, 0xFFFFFFFF))
            .visibleTo(ZebFeatureVisibilityExpert),
        integerFeature("LineDebounce", 64)
            .in("/DigitalIOControl")
            .represented("Logarithmic")
            .between(IntegerRange(1, 1048576)),
        stringFeature("UserText", "Text with <markup> & umlauts \xc3\xa4\xc3\xb6\xc3\xbc")
            .in("/UserControl"),
        stringFeature("UserTextEmpty").in("/UserControl"),
        rawFeature("UserData", {0x00, 0x01, 0x7F, 0x80, 0xFF}).in("/UserControl"),
        enumFeature("TestPattern", {"Off", "Ramp", "MovingRamp", "ColorBars"})
            .in("/ImageFormatControl")
            .offering([](const State& camera, const std::string& entry) {
                return entry != "ColorBars" || camera.text("PixelFormat") == "RGB8";
            }),
        integerFeature("LUTIndex", 0)
            .in("/LUTControl")
            .between(IntegerRange(0, lutEntries - 1))
            .visibleTo(ZebFeatureVisibilityExpert),
        lutValue,
        integerFeature("CurrentIPAddress", 0xC0A80A02)
            .in("/TransportLayerControl")
            .represented("IPV4Address")
            .between(IntegerRange(0, 0xFFFFFFFF))
            .readOnly(),
        integerFeature("PersistentIPAddress", 0xC0A80A02)
            .in("/TransportLayerControl")
            .represented("IPV4Address")
            .between(IntegerRange(0, 0xFFFFFFFF))
            .visibleTo(ZebFeatureVisibilityGuru),
        integerFeature("DeviceMACAddress", 0x000A1B2C3D4E)
            .in("/TransportLayerControl")
            .represented("MACAddress")
            .between(IntegerRange(0, 0xFFFFFFFFFFFF))
            .readOnly(),
        integerFeature("PacketSize", 1500)
            .in("/TransportLayerControl")
            .between(IntegerRange(576, 9000, 4))
            .visibleTo(ZebFeatureVisibilityGuru)
            .lockedWhileStreaming(),
        integerFeature("FactoryKey", 42).in("/").visibleTo(ZebFeatureVisibilityInvisible),
        integerFeature("LinkSpeedClass", 2).in("/TransportLayerControl").readOnly(),
        floatFeature("DeviceTemperature", 41.5)
            .in("/DeviceControl")
            .measuredIn("C")
            .readOnly()
            .changingByItself(),
        integerFeature("Timestamp").in("/DeviceControl").represented("PureNumber").readOnly(),
        commandFeature("TimestampLatch",
                       [](Reaction& camera) {
                           camera.set("Timestamp", camera.integer("Timestamp") + 1000000);
                       })
            .in("/DeviceControl")
            .describedBy("Latches the timestamp."),
        commandFeature("DeviceSelfTest")
            .in("/DeviceControl")
            .lasting(std::chrono::milliseconds(500))
            .lockedWhileStreaming(),
    };
}

FeatureDescriptions fillers(const std::string& prefix, int count)
{
    FeatureDescriptions features;
    features.reserve(static_cast<std::size_t>(std::max(count, 0)));
    constexpr int kinds = 5;
    for (int number = 0; number < count; ++number) {
        const std::string name = prefix + std::to_string(number);
        FeatureDescription feature;
        switch (number % kinds) {
        case 0:
            feature = integerFeature(name, number).between(IntegerRange(0, 1000000));
            break;
        case 1:
            feature = floatFeature(name, number * 0.5).between(FloatRange(0.0, 1000000.0));
            break;
        case 2:
            feature = booleanFeature(name, number % 2 == 0);
            break;
        case 3:
            feature = enumFeature(name, {"First", "Second", "Third"});
            break;
        default:
            feature = stringFeature(name, "Text " + std::to_string(number));
        }
        feature.in("/Extra/Group" + std::to_string(number / 50))
            .describedBy("An extra feature. It has no effect.");
        features.push_back(std::move(feature));
    }
    return features;
}

} // namespace sim

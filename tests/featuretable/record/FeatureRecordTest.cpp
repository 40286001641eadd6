#include "DataTable.h"
#include "featuretable/record/ValueRange.h"
#include "featuretable/record/ValueText.h"

#include <cmath>
#include <limits>

namespace {

constexpr qint64 twoTo53 = qint64{1} << 53;
constexpr qint64 lowest = std::numeric_limits<qint64>::lowest();

FeatureInfo infoOf(const FeatureValue& value, const FeatureValue& minimum,
                   const FeatureValue& maximum, const std::string& representation = {},
                   const std::string& name = "Some")
{
    FeatureInfo info;
    info.name = name;
    info.representation = representation;
    info.value = value;
    info.minimum = minimum;
    info.maximum = maximum;
    return info;
}

} // namespace

/// What a record says of its cell and its editor.
class FeatureRecordTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

    /// The row's name is the representation.
    void readsAndWritesIntegers_data()
    {
        const DataTable row([](const QString& typed, qint64 value, const QString& shown) {
            const FeatureInfo info = infoOf(0, 0, 0, QTest::currentDataTag());
            const IntegerNotation* special = notationFor(info);
            const IntegerNotation& notation = special ? *special : decimalNotation;
            QCOMPARE(textToInteger(typed, notation), std::optional<std::int64_t>(value));
            QCOMPARE(cellText(info, value), shown);
        });
        row("HexNumber", "0000c0fe", 0xC0FE, "C0FE");
        row("IPV4Address", "192.168.010.2", 0xC0A80A02, "192.168.10.2");
        row("IPV4Address", "255.255.255.255", 0xFFFFFFFF, "255.255.255.255");
        row("MACAddress", "F0-0A:1b-2C:3d-4E", 0xF00A1B2C3D4E, "f0:0a:1b:2c:3d:4e");
        row("", "-9223372036854775808", lowest, "-9223372036854775808");
        row("Linear", "9007199254740993", twoTo53 + 1, "9007199254740993");
    }
    void readsAndWritesIntegers() { runRow(); }

    /// The row's name is the text.
    void readsAndWritesNumbers_data()
    {
        const DataTable row([](double number) {
            const QString text = QTest::currentDataTag();
            QCOMPARE(numberText(number), text);
            QCOMPARE(textToNumber(text), std::optional<double>(number));
        });
        row("10000000", 10000000.0);
        row("12589.254117941673", 12589.254117941673);
        row("0.0000025", 2.5e-6);
        row("2.5e-12", 2.5e-12);
        row("-1e+300", -1e300);
        row("0", 0.0);
        for (const char* rubbish : {"", "1,5", "1.000,5", "nan", "inf", "1e400", "0x10"})
            QVERIFY2(!textToNumber(rubbish), rubbish);
    }
    void readsAndWritesNumbers() { runRow(); }

    void choosesTheSlider_data()
    {
        const DataTable row([](const FeatureInfo& info, const QString& kind) {
            const auto range = sliderRange(info);
            const char* logarithmic = range && range->logarithmic ? "logarithmic" : "linear";
            QCOMPARE(QString(range ? logarithmic : "none"), kind);
        });
        constexpr double infinity = std::numeric_limits<double>::infinity();
        row("logarithmic integer", infoOf(5, 1, 10, "Logarithmic"), "logarithmic");
        row("from 0", infoOf(5, 0, 10, "Logarithmic"), "linear");
        row("exposure time as integer", infoOf(5, 1, 10, {}, "ExposureTime"), "linear");
        row("one value", infoOf(5, 5, 5), "none");
        row("beyond exact numbers", infoOf(5, 0, twoTo53 + 2), "none");
        row("logarithmic float", infoOf(5.0, 0.1, 10.0, "Logarithmic"), "logarithmic");
        row("exposure time", infoOf(5.0, 0.1, 10.0, {}, "ExposureTimeAbs"), "logarithmic");
        row("exposure time from 0", infoOf(5.0, 0.0, 10.0, {}, "ExposureTime"), "none");
        row("unlimited", infoOf(5.0, 0.1, infinity, "Logarithmic"), "none");
        row("not a number", infoOf(5.0, std::nan(""), 10.0, "Logarithmic"), "none");
        FeatureInfo unbounded = infoOf(5, 0, 0);
        unbounded.maximum.reset();
        row("no maximum", unbounded, "none");
    }
    void choosesTheSlider() { runRow(); }

    void snaps_data()
    {
        const DataTable row([](double minimum, double maximum, double increment, double value,
                               double expected, int steps) {
            const SliderRange range{minimum, maximum, increment, false};
            QVERIFY(snapped(value, range) == expected); // exactly
            QCOMPARE(sliderSteps(range), steps);
        });
        row("nearest", 0.0, 1023.0, 16.0, 41.0, 48.0, 63);
        row("last whole step", 0.0, 1023.0, 16.0, 1023.0, 1008.0, 63);
        row("last tenth", 0.0, 0.3, 0.1, 0.3, 0.3, 3);
        row("increment -1", 1.0, 2.0, -1.0, 1.5, 1.5, 10000);
        row("minimum with many digits", 1.0 / 3.0, 10.0, 0.1, 0.0, 1.0 / 3.0, 96);
        row("larger than the range", 0.0, 5.0, 16.0, 4.0, 0.0, 1);
        row("very many steps", 0.0, double(twoTo53), 1.0, double(twoTo53 - 1), double(twoTo53 - 1),
            10000);
        QCOMPARE(sliderValue(1.23456789, {1.0, 2.0, -1.0, true}), 1.23457);
        const SliderRange steps{1.0, 1000.0, 4.0, true};
        QCOMPARE(stepped(5.0, 5.01, steps), 9.0);
        QCOMPARE(stepped(9.0, 8.99, steps), 5.0);
        QCOMPARE(stepped(5.0, 100.0, steps), 101.0);
        QCOMPARE(stepped(1.0, 0.99, steps), 1.0);
        QCOMPARE(stepped(2.0, 2.01, {1.0, 10.0, 0.0, true}), 2.01);
    }
    void snaps() { runRow(); }
};

QTEST_MAIN(FeatureRecordTest)
#include "FeatureRecordTest.moc"

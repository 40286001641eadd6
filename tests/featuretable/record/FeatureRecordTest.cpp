#include "DataTable.h"
#include "featuretable/editors/IntegerValidator.h"
#include "featuretable/editors/SliderRange.h"
#include "featuretable/record/CellText.h"
#include "featuretable/record/DoubleText.h"
#include "featuretable/record/IntegerNotation.h"
#include "featuretable/record/IntegerRange.h"

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr qint64 twoTo53 = qint64{1} << 53;
constexpr qint64 highest = std::numeric_limits<qint64>::max();
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

/// That of the representation by which the row is named.
const IntegerNotation& notationOrDecimal()
{
    const IntegerNotation* special = notationFor(infoOf(0, 0, 0, QTest::currentDataTag()));
    return special ? *special : decimalNotation();
}

} // namespace

class FeatureRecordTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }
    /// The row's name is the representation.
    void readsAndWritesNotations_data()
    {
        const DataTable row([](QString typed, qint64 value, const QString& shown) {
            const IntegerNotation& notation = notationOrDecimal();
            int position = 0;
            const IntegerValidator validator(notation, {lowest, highest}, nullptr);
            QCOMPARE(validator.validate(typed, position), QValidator::Acceptable);
            QCOMPARE(notation.toValue(typed), std::optional<std::int64_t>(value));
            QCOMPARE(notation.toText(value), shown);
        });
        row("HexNumber", "c0ffee", 0xC0FFEE, "C0FFEE");
        row("HexNumber", "0000000a", 0xA, "A");
        row("HexNumber", "FFFFFFFF", 0xFFFFFFFF, "FFFFFFFF");
        row("IPV4Address", "192.168.10.2", 0xC0A80A02, "192.168.10.2");
        row("IPV4Address", "010.0.0.255", 0x0A0000FF, "10.0.0.255");
        row("IPV4Address", "255.255.255.255", 0xFFFFFFFF, "255.255.255.255");
        row("MACAddress", "00-0A:1b-2C:3d-4E", 0x000A1B2C3D4E, "00:0a:1b:2c:3d:4e");
        row("MACAddress", "ff:ff:ff:ff:ff:ff", 0xFFFFFFFFFFFF, "ff:ff:ff:ff:ff:ff");
        row("", "-9223372036854775808", lowest, "-9223372036854775808");
        row("Linear", "9007199254740993", twoTo53 + 1, "9007199254740993");
    }
    void readsAndWritesNotations() { runRow(); }

    void acceptsIntegerText_data()
    {
        const DataTable row([](QString typed, QValidator::State state) {
            const IntegerNotation& notation = notationOrDecimal();
            const IntegerValidator validator(notation, {0, 256}, nullptr);
            int position = 0;
            QCOMPARE(validator.validate(typed, position), state);
        });
        row("HexNumber", "", QValidator::Intermediate);
        row("HexNumber", "0x1", QValidator::Invalid);
        row("HexNumber", "100", QValidator::Acceptable);
        row("HexNumber", "101", QValidator::Intermediate); // above the maximum
        row("HexNumber", "123456789", QValidator::Invalid);
        row("IPV4Address", "0.0.1", QValidator::Intermediate);
        row("IPV4Address", "0.0.0.256", QValidator::Invalid);
        row("MACAddress", "00:00:00:00:00:1", QValidator::Intermediate);
        row("", "256", QValidator::Acceptable);
        row("", "257", QValidator::Intermediate);
        row("", "-", QValidator::Intermediate);
        row("", "1,5", QValidator::Invalid);
        row("", "9999999999999999999", QValidator::Intermediate); // beyond 64 bits
    }
    void acceptsIntegerText() { runRow(); }

    /// The row's name is the text.
    void readsAndWritesDoubles_data()
    {
        const DataTable row([](double number) {
            const QString text = QTest::currentDataTag();
            QCOMPARE(DoubleText::fromNumber(number), text);
            QCOMPARE(DoubleText::toNumber(text), std::optional<double>(number));
        });
        row("10000000", 10000000.0);
        row("0.1", 0.1);
        row("12589.254117941673", 12589.254117941673);
        row("0.0000025", 2.5e-6);
        row("2.5e-12", 2.5e-12);
        row("-1e+300", -1e300);
        row("0", 0.0);
        for (const char* rubbish : {"", "1,5", "1.000,5", "nan", "inf", "1e400", "0x10"})
            QVERIFY2(!DoubleText::toNumber(rubbish), rubbish);
    }

    void readsAndWritesDoubles() { runRow(); }

    void choosesTheIntegerField_data()
    {
        const DataTable row([](qint64 minimum, qint64 maximum, qint64 value, int field) {
            const IntegerRange range = integerRange(infoOf(value, minimum, maximum));
            QCOMPARE(int(integerFieldFor(range, value)), field);
        });
        const int spin32 = int(IntegerField::Spin32);
        const int spin53 = int(IntegerField::Spin53);
        const int text = int(IntegerField::Text);
        constexpr qint64 intMaximum = std::numeric_limits<int>::max();
        row("32 bits", -intMaximum - 1, intMaximum, 5, spin32);
        row("beyond 32 bits", 0, intMaximum + 1, 5, spin53);
        row("2^53", -twoTo53, twoTo53, 5, spin53);
        row("beyond 2^53", 0, twoTo53 + 1, 5, text);
        row("unlimited", lowest, highest, 5, text);
        row("stale value", 0, 10, twoTo53 + 1, text);
        row("one value", 5, 5, 5, spin32);
        row("nothing but the present value", twoTo53, 0, 5, spin32);
        QVERIFY(integerRange(infoOf(5, 7, 6)).contains(5));
        QVERIFY(!integerRange(infoOf(5, 7, 6)).contains(6));
        const IntegerRange unknown = integerRange(FeatureInfo());
        QCOMPARE(unknown.minimum, std::int64_t{-twoTo53});
        QCOMPARE(unknown.maximum, std::int64_t{twoTo53});
    }
    void choosesTheIntegerField() { runRow(); }

    void choosesTheSlider_data()
    {
        const DataTable row([](const FeatureInfo& info, const QString& kind) {
            const auto range = sliderRange(info);
            const char* logarithmic = range && range->logarithmic ? "logarithmic" : "linear";
            QCOMPARE(QString(range ? logarithmic : "none"), kind);
        });
        row("integer", infoOf(5, 0, 10), "linear");
        row("logarithmic integer", infoOf(5, 1, 10, "Logarithmic"), "logarithmic");
        row("from 0", infoOf(5, 0, 10, "Logarithmic"), "linear");
        row("exposure time as integer", infoOf(5, 1, 10, {}, "ExposureTime"), "linear");
        row("one value", infoOf(5, 5, 5), "none");
        row("beyond exact numbers", infoOf(5, 0, twoTo53 + 2), "none");
        row("float", infoOf(5.0, 0.0, 10.0), "none");
        row("logarithmic float", infoOf(5.0, 0.1, 10.0, "Logarithmic"), "logarithmic");
        row("float from 0", infoOf(5.0, 0.0, 10.0, "Logarithmic"), "none");
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
            QCOMPARE(sliderValue(1.23456789, {1.0, 2.0, -1.0, true}), 1.23457);
        });
        row("nearest", 0.0, 1023.0, 16.0, 41.0, 48.0, 63);
        row("last whole step", 0.0, 1023.0, 16.0, 1023.0, 1008.0, 63);
        row("from the minimum", 3.0, 11.0, 4.0, 6.0, 7.0, 2);
        row("below", 3.0, 11.0, 4.0, -5.0, 3.0, 2);
        row("last tenth", 0.0, 0.3, 0.1, 0.3, 0.3, 3);
        row("increment -1", 1.0, 2.0, -1.0, 1.5, 1.5, 10000);
        row("minimum with many digits", 1.0 / 3.0, 10.0, 0.1, 0.0, 1.0 / 3.0, 96);
        row("larger than the range", 0.0, 5.0, 16.0, 4.0, 0.0, 1);
        row("very many steps", 0.0, double(twoTo53), 1.0, double(twoTo53 - 1), double(twoTo53 - 1),
            10000);
    }
    void snaps() { runRow(); }

    void stepsAtLeastOneIncrement()
    {
        const SliderRange range{1.0, 1000.0, 4.0, true};
        QCOMPARE(stepped(5.0, 5.01, range), 9.0);
        QCOMPARE(stepped(9.0, 8.99, range), 5.0);
        QCOMPARE(stepped(5.0, 100.0, range), 101.0);
        QCOMPARE(stepped(1.0, 0.99, range), 1.0);
        QCOMPARE(stepped(2.0, 2.01, {1.0, 10.0, 0.0, true}), 2.01);
    }

    void coercesVariants()
    {
        QCOMPARE(toNumber(FeatureValue(std::int64_t{5})), std::optional<double>(5.0));
        QCOMPARE(toInteger(FeatureValue(1e300)), std::optional<std::int64_t>(highest));
        QCOMPARE(toInteger(FeatureValue(std::string("5"))), std::optional<std::int64_t>());
        QCOMPARE(toNumber(std::nullopt), std::optional<double>());
        QCOMPARE(toText(FeatureValue(5.0)), QString());
        QCOMPARE(toVariant(FeatureValue()), QVariant(qint64{0}));
        for (const FeatureValue& value : {FeatureValue(std::int64_t{highest}), FeatureValue(0.1),
                                          FeatureValue(true), FeatureValue(std::string("5"))})
            QVERIFY(toFeatureValue(toVariant(value)) == value);
        QVERIFY(!isSameValue(0.1 + 0.2, 0.3));
        QVERIFY(isSameValue(0.3, 0.3) && isSameValue(qint64{3}, 3));
        QCOMPARE(toVariant(std::string("\xc3\xa4")), QVariant(QString("\u00e4")));
    }

    void tellsCells()
    {
        FeatureInfo info = infoOf(0, 0, 0, "HexNumber");
        info.displayName = "Register %2";
        info.unit = "us";
        QCOMPARE(cellText(info, qint64{255}), QString("FF"));
        QCOMPARE(accessibleCellText(info, qint64{255}), QString("Register %2: FF us"));
        QCOMPARE(cellText(info, 1234567.5), QString("1234567.5"));
        info.maximum = FeatureValue(std::int64_t{0x100000000});
        QCOMPARE(cellText(info, qint64{0x1C0FFEE00}), QString("1C0FFEE00"));
        QCOMPARE(cellText(info, qint64{-1}), QString("FFFFFFFFFFFFFFFF"));
        QCOMPARE(cellText(info, {}), QString());
        info.isCommand = true;
        QCOMPARE(cellText(info, qint64{3}), QString("Execute"));
    }

    void filters()
    {
        FeatureInfo info;
        info.name = "ExposureTimeAbs";
        info.displayName = "Exposure Time (abs)";
        info.description = "Time that the sensor is exposed.";
        for (const char* filter : {"", "exposuretime", " time (abs) ", "SENSOR"})
            QVERIFY2(matchesFilter(info, filter), filter);
        QVERIFY(!matchesFilter(info, "Expo.*Time") && !matchesFilter(info, "gain"));
    }
};

QTEST_MAIN(FeatureRecordTest)
#include "FeatureRecordTest.moc"

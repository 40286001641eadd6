#include "featuretable/CellText.h"
#include "featuretable/DoubleText.h"
#include "featuretable/FeatureFilter.h"
#include "featuretable/IntegerNotation.h"
#include "featuretable/IntegerRange.h"
#include "featuretable/IntegerValidator.h"
#include "featuretable/SliderRange.h"

#include <QtTest>

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

} // namespace

class FeatureArithmeticTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }
    void readsAndWritesNotations_data();
    void readsAndWritesNotations();
    void acceptsIntegerText_data();
    void acceptsIntegerText();
    void readsAndWritesDoubles_data();
    void readsAndWritesDoubles();
    void choosesTheIntegerField_data();
    void choosesTheIntegerField();
    void choosesTheSlider_data();
    void choosesTheSlider();
    void snaps_data();
    void snaps();
    void stepsAtLeastOneIncrement();
    void coercesVariants();
    void tellsCells();
    void filters_data();
    void filters();
};

void FeatureArithmeticTest::readsAndWritesNotations_data()
{
    QTest::addColumn<QString>("representation");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("shown");
    const auto row
        = [](const char* representation, const char* typed, qint64 value, const char* shown) {
              QTest::addRow("%s %s", representation, typed)
                  << QString(representation) << QString(typed) << value << QString(shown);
          };
    row("HexNumber", "c0ffee", 0xC0FFEE, "C0FFEE");
    row("HexNumber", "0", 0, "0");
    row("HexNumber", "FFFFFFFF", 0xFFFFFFFF, "FFFFFFFF");
    row("IPV4Address", "192.168.10.2", 0xC0A80A02, "192.168.10.2");
    row("IPV4Address", "010.0.0.255", 0x0A0000FF, "10.0.0.255");
    row("IPV4Address", "255.255.255.255", 0xFFFFFFFF, "255.255.255.255");
    row("MACAddress", "00-0A:1b-2C:3d-4E", 0x000A1B2C3D4E, "00:0a:1b:2c:3d:4e");
    row("MACAddress", "ff:ff:ff:ff:ff:ff", 0xFFFFFFFFFFFF, "ff:ff:ff:ff:ff:ff");
    row("HexNumber", "0000000a", 0xA, "A");
    row("", "-9223372036854775808", lowest, "-9223372036854775808");
    row("Linear", "9007199254740993", twoTo53 + 1, "9007199254740993");
}

void FeatureArithmeticTest::readsAndWritesNotations()
{
    QFETCH(QString, representation);
    QFETCH(QString, typed);
    QFETCH(qint64, value);
    const auto* special = notationFor(representation);
    QCOMPARE(special == nullptr, representation.isEmpty() || representation == "Linear");
    const IntegerNotation& notation = special ? *special : decimalNotation();
    int position = 0;
    const IntegerValidator validator(notation, {lowest, highest}, nullptr);
    QCOMPARE(validator.validate(typed, position), QValidator::Acceptable);
    QCOMPARE(notation.toValue(typed), std::optional<std::int64_t>(value));
    QTEST(notation.toText(value), "shown");
}

void FeatureArithmeticTest::acceptsIntegerText_data()
{
    QTest::addColumn<QString>("representation");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("state");
    const auto row = [](const char* representation, const char* typed, QValidator::State state) {
        QTest::addRow("%s '%s'", representation, typed)
            << QString(representation) << QString(typed) << int(state);
    };
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

void FeatureArithmeticTest::acceptsIntegerText()
{
    QFETCH(QString, representation);
    QFETCH(QString, typed);
    const auto* special = notationFor(representation);
    const IntegerValidator validator(special ? *special : decimalNotation(), {0, 256}, nullptr);
    int position = 0;
    QTEST(int(validator.validate(typed, position)), "state");
}

void FeatureArithmeticTest::readsAndWritesDoubles_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("thousands") << 10000000.0 << "10000000";
    QTest::newRow("fraction") << 0.1 << "0.1";
    QTest::newRow("many digits") << 12589.254117941673 << "12589.254117941673";
    QTest::newRow("small") << 2.5e-6 << "0.0000025";
    QTest::newRow("smaller") << 2.5e-12 << "2.5e-12";
    QTest::newRow("large") << -1e300 << "-1e+300";
    QTest::newRow("zero") << 0.0 << "0";
}

void FeatureArithmeticTest::readsAndWritesDoubles()
{
    QFETCH(double, number);
    QTEST(DoubleText::fromNumber(number), "text");
    QCOMPARE(DoubleText::toNumber(DoubleText::fromNumber(number)), std::optional<double>(number));
    for (const char* rubbish : {"", "1,5", "1.000,5", "nan", "inf", "1e400", "0x10"})
        QVERIFY2(!DoubleText::toNumber(rubbish), rubbish);
}

void FeatureArithmeticTest::choosesTheIntegerField_data()
{
    QTest::addColumn<qint64>("minimum");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("field");
    const int spin32 = int(IntegerField::Spin32);
    const int spin53 = int(IntegerField::Spin53);
    const int text = int(IntegerField::Text);
    constexpr qint64 intMaximum = std::numeric_limits<int>::max();
    QTest::newRow("32 bits") << -intMaximum - 1 << intMaximum << qint64{5} << spin32;
    QTest::newRow("beyond 32 bits") << qint64{0} << intMaximum + 1 << qint64{5} << spin53;
    QTest::newRow("2^53") << -twoTo53 << twoTo53 << qint64{5} << spin53;
    QTest::newRow("beyond 2^53") << qint64{0} << twoTo53 + 1 << qint64{5} << text;
    QTest::newRow("unlimited") << lowest << highest << qint64{5} << text;
    QTest::newRow("stale value") << qint64{0} << qint64{10} << twoTo53 + 1 << text;
    QTest::newRow("range not read") << qint64{-1} << qint64{-1} << qint64{5} << spin53;
    QTest::newRow("one value") << qint64{5} << qint64{5} << qint64{5} << spin32;
}

void FeatureArithmeticTest::choosesTheIntegerField()
{
    QFETCH(qint64, minimum);
    QFETCH(qint64, maximum);
    QFETCH(qint64, value);
    const IntegerRange range = integerRange(infoOf(value, minimum, maximum));
    QTEST(int(integerFieldFor(range, value)), "field");
}

void FeatureArithmeticTest::choosesTheSlider_data()
{
    QTest::addColumn<FeatureInfo>("info");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char* name, const FeatureInfo& info, const char* kind) {
        QTest::newRow(name) << info << QString(kind);
    };
    row("integer", infoOf(5, 0, 10), "linear");
    row("logarithmic integer", infoOf(5, 1, 10, "Logarithmic"), "logarithmic");
    row("from 0", infoOf(5, 0, 10, "Logarithmic"), "linear");
    row("exposure time as integer", infoOf(5, 1, 10, {}, "ExposureTime"), "linear");
    row("one value", infoOf(5, 5, 5), "none");
    row("beyond exact numbers", infoOf(5, 0, twoTo53 + 2), "none");
    row("float", infoOf(5.0, 0.0, 10.0), "none");
    row("logarithmic float", infoOf(5.0, 0.1, 10.0, "Logarithmic"), "logarithmic");
    row("float from 0", infoOf(5.0, 0.0, 10.0, "Logarithmic"), "none");
    row("exposure time", infoOf(5.0, 0.1, 10.0, {}, "ExposureTime"), "logarithmic");
    row("older exposure time", infoOf(5.0, 0.1, 10.0, {}, "ExposureTimeAbs"), "logarithmic");
    row("exposure time from 0", infoOf(5.0, 0.0, 10.0, {}, "ExposureTimeAbs"), "none");
    row("unlimited", infoOf(5.0, 0.1, infinity, "Logarithmic"), "none");
    row("not a number", infoOf(5.0, std::nan(""), 10.0, "Logarithmic"), "none");
    FeatureInfo unbounded = infoOf(5, 0, 0);
    unbounded.maximum.reset();
    row("no maximum", unbounded, "none");
}

void FeatureArithmeticTest::choosesTheSlider()
{
    QFETCH(FeatureInfo, info);
    const auto range = sliderRange(info);
    const char* logarithmic = range && range->logarithmic ? "logarithmic" : "linear";
    QTEST(QString(range ? logarithmic : "none"), "kind");
}

void FeatureArithmeticTest::snaps_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("increment");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::addColumn<int>("steps");
    QTest::newRow("nearest") << 0.0 << 1023.0 << 16.0 << 41.0 << 48.0 << 63;
    QTest::newRow("last whole step") << 0.0 << 1023.0 << 16.0 << 1023.0 << 1008.0 << 63;
    QTest::newRow("from the minimum") << 3.0 << 11.0 << 4.0 << 6.0 << 7.0 << 2;
    QTest::newRow("below") << 3.0 << 11.0 << 4.0 << -5.0 << 3.0 << 2;
    QTest::newRow("above") << 3.0 << 11.0 << 4.0 << infinity << 11.0 << 2;
    QTest::newRow("tenths") << 0.0 << 1.0 << 0.1 << 0.31 << 0.3 << 10;
    QTest::newRow("last tenth") << 0.0 << 0.3 << 0.1 << 0.3 << 0.3 << 3;
    QTest::newRow("no increment") << 1.0 << 2.0 << 0.0 << 1.23456789012 << 1.23456789012 << 10000;
    QTest::newRow("increment -1") << 1.0 << 2.0 << -1.0 << 1.5 << 1.5 << 10000;
    QTest::newRow("minimum with many digits") << 1.0 / 3.0 << 10.0 << 0.1 << 0.0 << 1.0 / 3.0 << 96;
    QTest::newRow("larger than the range") << 0.0 << 5.0 << 16.0 << 4.0 << 0.0 << 1;
    QTest::newRow("very many steps")
        << 0.0 << double(twoTo53) << 1.0 << double(twoTo53 - 1) << double(twoTo53 - 1) << 10000;
}

void FeatureArithmeticTest::snaps()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, increment);
    QFETCH(double, value);
    QFETCH(double, expected);
    const SliderRange range{minimum, maximum, increment, false};
    QVERIFY(snapped(value, range) == expected); // exactly
    QTEST(sliderSteps(range), "steps");
    QCOMPARE(sliderValue(1.23456789, {1.0, 2.0, -1.0, true}), 1.23457);
}

void FeatureArithmeticTest::stepsAtLeastOneIncrement()
{
    const SliderRange range{1.0, 1000.0, 4.0, true};
    QCOMPARE(stepped(5.0, 5.01, range), 9.0);
    QCOMPARE(stepped(9.0, 8.99, range), 5.0);
    QCOMPARE(stepped(5.0, 100.0, range), 101.0);
    QCOMPARE(stepped(1.0, 0.99, range), 1.0);
    QCOMPARE(stepped(2.0, 2.01, {1.0, 10.0, 0.0, true}), 2.01);
}

void FeatureArithmeticTest::coercesVariants()
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
    QCOMPARE(toVariant(std::string("\xc3\xa4")), QVariant(QStringLiteral("\u00e4")));
}

void FeatureArithmeticTest::tellsCells()
{
    FeatureInfo info = infoOf(0, 0, 0, "HexNumber");
    info.displayName = "Register %2";
    info.unit = "us";
    QCOMPARE(cellText(info, qint64{255}), QStringLiteral("FF"));
    QCOMPARE(accessibleCellText(info, qint64{255}), QStringLiteral("Register %2: FF us"));
    QCOMPARE(cellText(info, 1234567.5), QStringLiteral("1234567.5"));
    QCOMPARE(cellText(info, qint64{0x100000000}), QStringLiteral("4294967296"));
    info.maximum = FeatureValue(std::int64_t{0x100000000});
    QCOMPARE(cellText(info, qint64{255}), QStringLiteral("255"));
    info.isCommand = true;
    QCOMPARE(cellText(info, qint64{3}), QStringLiteral("Execute"));
}

void FeatureArithmeticTest::filters_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("matches");
    QTest::newRow("empty") << "" << true;
    QTest::newRow("name") << "exposuretime" << true;
    QTest::newRow("display name") << " time (abs) " << true;
    QTest::newRow("description") << "SENSOR" << true;
    QTest::newRow("no pattern") << "Expo.*Time" << false;
    QTest::newRow("none") << "gain" << false;
}

void FeatureArithmeticTest::filters()
{
    QFETCH(QString, filter);
    FeatureInfo info;
    info.name = "ExposureTimeAbs";
    info.displayName = "Exposure Time (abs)";
    info.description = "Time that the sensor is exposed.";
    QTEST(matchesFilter(info, filter), "matches");
}

QTEST_MAIN(FeatureArithmeticTest)
#include "FeatureArithmeticTest.moc"

#include "DataTable.h"
#include "MessageHandlerGuard.h"
#include "RegionPage.h"

#include "simulator/State.h"

#include <optional>
#include <random>

Q_DECLARE_METATYPE(sim::NotificationSettings)

namespace {

/// The steps by which one axis of a region reaches the camera, in whole numbers.
struct ExpectedAxis
{
    struct Grid
    {
        int minimum;
        int step;      ///< of the field
        int increment; ///< of the camera
    };

    Grid offsetGrid;
    Grid sizeGrid;
    int maximum;
    bool isEven;
    int offset; ///< on the camera
    int size;

    static int snapped(int value, const Grid& grid)
    {
        const int remainder = (value - grid.minimum) % grid.step;
        return remainder == 0 ? value : value - remainder + (remainder > 0 ? grid.step : 0);
    }

    static int aligned(int value, const Grid& grid)
    {
        return std::max(grid.minimum, value / grid.increment * grid.increment);
    }

    void writeOffset(int value)
    {
        offset = aligned(std::min(snapped(value, offsetGrid), maximum - size), offsetGrid);
    }

    void writeSize(int value)
    {
        value = snapped(value, sizeGrid);
        size = aligned(std::min(value + (isEven ? value % 2 : 0), maximum - offset), sizeGrid);
    }

    void write(int newOffset, int newSize, int overflowStep)
    {
        newOffset = snapped(newOffset, offsetGrid);
        newSize = snapped(newSize, sizeGrid);
        if (newOffset + newSize > maximum) {
            newSize = maximum - newOffset;
            newOffset -= overflowStep;
        }
        const bool isOffsetFirst = newOffset + size <= maximum;
        if (isOffsetFirst)
            writeOffset(newOffset);
        writeSize(newSize);
        if (!isOffsetFirst)
            writeOffset(newOffset);
    }
};

/// Offsets and sizes with ranges that do not follow each other, of which the camera still refuses
/// what reaches beyond the sensor.
void fixRanges(sim::Camera& camera)
{
    const auto fix = [&camera](const char* name, const char* other, const char* maximum,
                               const sim::IntegerRange& range) {
        camera.modify(name, [=](sim::FeatureDescription& feature) {
            feature.between(range).accepting([=](const sim::State& state, const sim::Value& value) {
                return value.toInteger() + state.integer(other) <= state.integer(maximum)
                    ? ZebErrorSuccess
                    : ZebErrorBadParameter;
            });
        });
    };
    fix("OffsetX", "Width", "WidthMax", {0, 2584, 4});
    fix("Width", "OffsetX", "WidthMax", {8, 2592, 8});
    fix("OffsetY", "Height", "HeightMax", {0, 1936, 2});
    fix("Height", "OffsetY", "HeightMax", {8, 1944, 2});
}

/// What a person or another client does next.
class Visitor
{
public:
    explicit Visitor(AOIPage& page)
        : m_page(page)
    {
        QObject::connect(page.label, &RubberBandLabel::SendGeometry, page.label,
                         [this](int top, int left, int width, int height) {
                             m_sent = {top, left, width, height};
                         });
    }

    void act()
    {
        m_expected.reset();
        switch (below(12)) {
        case 0:
            preset(below(3));
            break;
        case 1:
        case 2:
            type(below(4));
            break;
        case 3:
            m_page.camera->writeAsOtherClient(features[below(4)], std::int64_t{below(700) * 4});
            break;
        case 4:
            if (m_page.camera->has("BinningVertical"))
                m_page.camera->writeAsOtherClient(
                    below(2) ? "BinningHorizontal" : "BinningVertical", std::int64_t{1 + below(2)});
            break;
        case 5:
            m_page.comeBack();
            break;
        case 6:
            m_page.resize(460 + below(100), 400 + below(400));
            break;
        default:
            dragSomewhere();
        }
    }

    /// What the camera has after an act about which the page alone decides.
    const std::optional<SensorRegion>& expected() const { return m_expected; }

private:
    static constexpr const char* features[]{"OffsetY", "OffsetX", "Width", "Height"};

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    ExpectedAxis axis(const char* offsetField, const char* sizeField, const char* offset,
                      const char* size, const char* maximum) const
    {
        const auto grid = [this](const char* field, const char* feature) {
            return ExpectedAxis::Grid{int(m_page.field(field)->minimum()),
                                      int(m_page.field(field)->singleStep()),
                                      int(m_page.camera->feature(feature).range().increment)};
        };
        const bool isMono = m_page.camera->feature("PixelFormat").text().find("Mono") == 0;
        const bool isEven = !isMono && !m_page.camera->has("AutofunctionAOIWidth");
        return {grid(offsetField, offset), grid(sizeField, size), m_page.value(maximum), isEven,
                m_page.value(offset),      m_page.value(size)};
    }
    ExpectedAxis vertical() const
    {
        return axis("spinTop", "spinHeight", "OffsetY", "Height", "HeightMax");
    }
    ExpectedAxis horizontal() const
    {
        return axis("spinLeft", "spinWidth", "OffsetX", "Width", "WidthMax");
    }

    void expect(const ExpectedAxis& vertical, const ExpectedAxis& horizontal)
    {
        m_expected = {vertical.offset, horizontal.offset, horizontal.size, vertical.size};
    }

    void expectWritten(ExpectedAxis vertical, ExpectedAxis horizontal, const SensorRegion& wanted)
    {
        vertical.write(wanted.top, wanted.height, vertical.sizeGrid.step);
        horizontal.write(wanted.left, wanted.width, horizontal.offsetGrid.step);
        expect(vertical, horizontal);
    }

    void preset(int which)
    {
        const ExpectedAxis v = vertical();
        const ExpectedAxis h = horizontal();
        const int part = 1 << which;
        const int width = h.maximum / part;
        const int height = v.maximum / part;
        m_page.click(which == 0 ? "btnFull" : which == 1 ? "btnHalf" : "btnQuarter");
        expectWritten(v, h, {(v.maximum - height) / 2, (h.maximum - width) / 2, width, height});
    }

    void type(int which)
    {
        static const char* const fields[]{"spinTop", "spinLeft", "spinWidth", "spinHeight"};
        ExpectedAxis v = vertical();
        ExpectedAxis h = horizontal();
        QDoubleSpinBox* const field = m_page.field(fields[which]);
        const int value = below(int(field->maximum()) + 1);
        ExpectedAxis& axis = which % 3 == 0 ? v : h;
        const int typed = std::max(value, int(field->minimum()));
        if (typed != int(field->value()))
            which < 2 ? axis.writeOffset(typed) : axis.writeSize(typed);
        field->setValue(value);
        expect(v, h);
    }

    /// By any edge, corner or the inside; while the page's size changes now and then.
    void dragSomewhere()
    {
        const QRect band = m_page.band();
        const int xs[]{band.left() + 1, band.center().x(), band.right() - 2};
        const int ys[]{band.top() + 1, band.center().y(), band.bottom() - 2};
        m_sent.reset();
        press(m_page.label, {xs[below(3)], ys[below(3)]});
        const auto writes = m_page.camera->journal().writes().size();
        QPoint pointer;
        for (int i = 0; i < 3; ++i) {
            if (below(20) == 0)
                m_page.resize(460 + below(100), 400 + below(400));
            pointer
                = {below(m_page.label->width() + 60) - 30, below(m_page.label->height() + 60) - 30};
            const QSize size = m_page.label->size();
            sendMouse(m_page.label, QEvent::MouseMove, pointer);
            const QString shown = text(inFields(m_page));
            m_page.settle();
            QCOMPARE(text(inFields(m_page)), shown);
            QCOMPARE(m_page.label->size(), size);
        }
        QCOMPARE(m_page.camera->journal().writes().size(), writes);
        const ExpectedAxis v = vertical();
        const ExpectedAxis h = horizontal();
        release(m_page.label, pointer);
        if (m_sent)
            expectWritten(v, h, *m_sent);
    }

    AOIPage& m_page;
    std::mt19937 m_random{7};
    std::optional<SensorRegion> m_sent;
    std::optional<SensorRegion> m_expected;
};

} // namespace

class AOIVisitsTest : public QObject
{
    Q_OBJECT

private slots:
    void staysWithTheCamera_data()
    {
        const DataTable<QByteArray, sim::NotificationSettings> table{"model", "settings"};
        using sim::NotificationSettings;
        const auto synchronous = NotificationSettings::synchronous();
        const auto asynchronous = NotificationSettings::asynchronous(std::chrono::milliseconds(1));
        table.row("current, synchronous", "current", synchronous);
        table.row("current, asynchronous", "current", asynchronous);
        table.row("current, silent", "current", NotificationSettings::off());
        table.row("coarse", "coarse", synchronous);
        table.row("bayer", "bayer", synchronous);
        table.row("fixed ranges", "plain", synchronous);
    }

    /// The camera refuses what is off its grid or reaches beyond the maximum with what it has.
    void staysWithTheCamera()
    {
        QFETCH(QByteArray, model);
        QFETCH(sim::NotificationSettings, settings);
        AOIPage p(model, [&](sim::Camera& camera) {
            if (model == "plain")
                fixRanges(camera);
        });
        p.camera->setNotifications(settings);
        Visitor visitor(p);
        for (int i = 0; i < 400; ++i) {
            visitor.act();
            if (QTest::currentTestFailed())
                return;
            if (visitor.expected()) {
                QCOMPARE(text(p.onCamera()), text(*visitor.expected()));
                QVERIFY2(!p.anyRefused(), qPrintable(p.writes().join(", ")));
            }
            p.camera->journal().clear();
            if (settings.mode == sim::NotificationSettings::Mode::Off)
                p.comeBack(); // nobody tells of other clients' writes
            p.settle();
            QCOMPARE(text(inFields(p)), text(p.onCamera()));
            QCOMPARE(text(p.label->region()), text(p.onCamera()));
            QCOMPARE(p.label->sensorSize(), QSize(p.value("WidthMax"), p.value("HeightMax")));
            const LabelGeometry where{p.label->size(), p.label->sensorSize(),
                                      p.label->pixmap(Qt::ReturnByValue).size()};
            QCOMPARE(p.band(), bandForRegion(p.onCamera(), where));
        }
    }

private:
    MessageHandlerGuard m_guard;
};

QTEST_MAIN(AOIVisitsTest)

#include "AOIVisitsTest.moc"

#include "DataTable.h"
#include "regions/Visitor.h"

#include "simulator/State.h"

#include <optional>

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

class AOIVisitor : public Visitor<AOIWidget>
{
public:
    explicit AOIVisitor(AOIPage& page)
        : Visitor(page,
                  {{"spinTop", "OffsetY"},
                   {"spinLeft", "OffsetX"},
                   {"spinWidth", "Width"},
                   {"spinHeight", "Height"}})
    {
        QObject::connect(page.label, &RubberBandLabel::SendGeometry, page.label,
                         [this](int top, int left, int width, int height) {
                             m_sent = {top, left, width, height};
                         });
    }

    bool act() override
    {
        m_expected.reset();
        return Visitor::act();
    }

    void compareWritten() const override
    {
        if (m_expected)
            QCOMPARE(text(m_page.onCamera()), text(*m_expected));
    }

    void compare() const override
    {
        Visitor::compare();
        const QSize sensor(m_page.value("WidthMax"), m_page.value("HeightMax"));
        QCOMPARE(m_page.label->sensorSize(), sensor);
        const QSize picture = m_page.label->pixmap(Qt::ReturnByValue).size();
        QCOMPARE(m_page.band(), bandForRegion(drawn(), {m_page.label->size(), sensor, picture}));
    }

protected:
    void preset(int which) override
    {
        const ExpectedAxis v = vertical();
        const ExpectedAxis h = horizontal();
        const int width = h.maximum >> which;
        const int height = v.maximum >> which;
        Visitor::preset(which);
        expectWritten(v, h, {(v.maximum - height) / 2, (h.maximum - width) / 2, width, height});
    }

    bool type(int which, QDoubleSpinBox& field, int value) override
    {
        ExpectedAxis v = vertical();
        ExpectedAxis h = horizontal();
        ExpectedAxis& axis = which % 3 == 0 ? v : h;
        const int typed = std::max(value, int(field.minimum()));
        if (typed != int(field.value()))
            which < 2 ? axis.writeOffset(typed) : axis.writeSize(typed);
        expect(v, h);
        return Visitor::type(which, field, value);
    }

    void changeImage() override
    {
        if (m_page.camera->has("BinningVertical"))
            writeAsOther(below(2) ? "BinningHorizontal" : "BinningVertical", 1 + below(2));
    }

    void drop(const QPoint& pointer) override
    {
        const ExpectedAxis v = vertical();
        const ExpectedAxis h = horizontal();
        m_sent.reset();
        Visitor::drop(pointer);
        if (m_sent)
            expectWritten(v, h, *m_sent);
    }

    SensorRegion drawn() const override { return m_page.onCamera(); }

private:
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

    std::optional<SensorRegion> m_sent;
    std::optional<SensorRegion> m_expected; ///< after an act about which the page alone decides
};

} // namespace

class AOIVisitsTest : public QObject
{
    Q_OBJECT

private slots:
    /// The camera refuses what is off its grid or reaches beyond the maximum with what it has.
    void staysWithTheCamera_data()
    {
        using sim::NotificationSettings;
        const DataTable row([](const QByteArray& model, const NotificationSettings& settings) {
            AOIPage p(model, [&](sim::Camera& camera) {
                if (model == "plain")
                    fixRanges(camera);
            });
            p.camera->setNotifications(settings);
            AOIVisitor visitor(p);
            visit(p, visitor, 400);
        });
        const auto synchronous = NotificationSettings::synchronous();
        const auto asynchronous = NotificationSettings::asynchronous(std::chrono::milliseconds(1));
        row("current, synchronous", "current", synchronous);
        row("current, asynchronous", "current", asynchronous);
        row("current, silent", "current", NotificationSettings::off());
        row("coarse", "coarse", synchronous);
        row("bayer", "bayer", synchronous);
        row("fixed ranges", "plain", synchronous);
    }
    void staysWithTheCamera() { runRow(); }
};

QTEST_MAIN(AOIVisitsTest)

#include "AOIVisitsTest.moc"

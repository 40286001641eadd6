#include "DataTable.h"
#include "regions/RegionPage.h"
#include "regions/automatic/AutoRegionRules.h"

#include <random>

using sim::NotificationSettings;
using sim::Operation;

namespace {

bool tellsEdges(const sim::Camera& camera)
{
    return camera.has("DSPSubregionLeft");
}

/// The region on the label, by what the camera has.
QRect drawn(const AOIPage& p)
{
    return p.onCamera();
}

QRect drawn(const AutoROIPage& p)
{
    const QSize sensor = p.label->sensorSize();
    const QSizeF limits(sensor);
    QVector<double> bound;
    for (const auto& field : regionFields(*p.camera, true))
        bound << p.value(field.second);
    if (tellsEdges(*p.camera))
        return drawnByEdges({spanBetween(bound[0], bound[2]), spanBetween(bound[1], bound[3])},
                            limits);
    const QPointF origin(p.value("AutoModeRegionOffsetX"), p.value("AutoModeRegionOffsetY"));
    return drawnBySize({{bound[0], bound[2]}, {bound[1], bound[3]}}, origin, limits);
}

/// What a person or another client does next with a page, and what holds afterwards.
template <typename Page> class Visitor
{
public:
    Visitor(RegionPage<Page>& page, unsigned seed)
        : m_page(page)
        , m_fields(regionFields(*page.camera, std::is_same_v<Page, AutoROIWidget>))
        , m_random(seed)
    {
    }

    /// Whether a strict camera has to take all that the page writes.
    bool act()
    {
        static const char* const presets[]{"btnFull", "btnHalf", "btnQuarter"};
        switch (below(12)) {
        case 0:
            m_page.click(presets[below(3)]);
            break;
        case 1:
        case 2: {
            QDoubleSpinBox* const field = m_page.field(m_fields[below(4)].first);
            field->setValue(below(int(field->maximum()) + 1));
            return !tellsEdges(*m_page.camera); // edges may be typed across each other
        }
        case 3:
            writeAsOther(m_fields[below(4)].second, 4 * below(500));
            break;
        case 4:
            changeImage();
            break;
        case 5:
            m_page.comeBack();
            break;
        case 6:
            resize();
            break;
        default:
            dragSomewhere();
        }
        return true;
    }

    void compare() const
    {
        for (const auto& [field, feature] : m_fields)
            QCOMPARE(int(m_page.field(field)->value()), m_page.value(feature));
        QCOMPARE(m_page.label->region(), drawn(m_page));
        const QSize picture = m_page.label->pixmap(Qt::ReturnByValue).size();
        QCOMPARE(m_page.band(),
                 bandForRegion(drawn(m_page),
                               {m_page.label->size(), m_page.label->sensorSize(), picture}));
        if (std::is_same_v<Page, AOIWidget>)
            QCOMPARE(m_page.label->sensorSize(),
                     QSize(m_page.value("WidthMax"), m_page.value("HeightMax")));
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    /// Of a camera that tells nothing, the page shows changes when it comes back.
    void writeAsOther(const QString& feature, std::int64_t value)
    {
        m_page.camera->writeAsOtherClient(feature.toStdString(), value);
        if (m_page.camera->notifications().mode == NotificationSettings::Mode::Off)
            m_page.comeBack();
    }

    void changeImage()
    {
        const bool isHorizontal = below(2) == 0;
        if (std::is_same_v<Page, AutoROIWidget>)
            writeAsOther(isHorizontal ? "Width" : "Height", 64 + below(200) * 8);
        else if (m_page.camera->has("BinningVertical"))
            writeAsOther(isHorizontal ? "BinningHorizontal" : "BinningVertical", 1 + below(2));
    }

    void resize() { m_page.resize(460 + below(100), 400 + below(400)); }

    /// By any edge, corner or the inside; while the page's size changes now and then. Nothing is
    /// written before the end, and nothing moves by itself.
    void dragSomewhere()
    {
        m_page.resize(m_page.page->width(), m_page.page->height()); // comes to rest
        const QRect band = m_page.band();
        const int xs[]{band.left() + 1, band.center().x(), band.right() - 2};
        const int ys[]{band.top() + 1, band.center().y(), band.bottom() - 2};
        press(m_page.label, {xs[below(3)], ys[below(3)]});
        const QStringList writes = m_page.writes();
        QPoint pointer;
        for (int i = 0; i < 3; ++i) {
            if (below(20) == 0)
                resize();
            const QSize size = m_page.label->size();
            pointer = {below(size.width() + 60) - 30, below(size.height() + 60) - 30};
            sendMouse(m_page.label, QEvent::MouseMove, pointer);
            const QRect before = m_page.band();
            m_page.settle();
            QCOMPARE(m_page.band(), before);
            QCOMPARE(m_page.label->size(), size);
        }
        QCOMPARE(m_page.writes(), writes);
        release(m_page.label, pointer);
    }

    RegionPage<Page>& m_page;
    const QVector<QPair<QString, QString>> m_fields;
    std::mt19937 m_random;
};

/// Lets a visitor act until something no longer holds. Every other time now and then a read is
/// refused; two ticks after the last refusal all is well.
template <typename Page>
void visit(const QByteArray& model, const NotificationSettings& notifications, int times)
{
    const auto reads = sim::Operations(Operation::GetValue) | Operation::GetRange
        | Operation::GetIncrement | Operation::IsReadable | Operation::IsWritable;
    RegionPage<Page> page(model);
    page.camera->setNotifications(notifications);
    Visitor<Page> visitor(page, 7);
    for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
        page.camera->journal().clear();
        const bool isRefusing = i % 2 == 1;
        if (isRefusing)
            page.camera->failures().add("*", reads, sim::Failure::refuse(),
                                        sim::Occurrence::randomly(0.1, std::uint64_t(i)));
        const bool takesAll = visitor.act();
        QVERIFY2(!takesAll || isRefusing || !page.anyRefused(),
                 qPrintable(page.writes().join(", ")));
        page.settle();
        page.camera->failures().clear();
        for (int ticks = 0; isRefusing && ticks < 2; ++ticks)
            page.settle();
        visitor.compare();
    }
}

} // namespace

class RegionVisitsTest : public QObject
{
    Q_OBJECT

private slots:
    /// Most cameras refuse what is off their grid, or reaches out of the image or the sensor with
    /// what they have, at any step of the way.
    void staysWithTheCamera_data()
    {
        const auto synchronous = NotificationSettings::synchronous();
        const auto asynchronous = NotificationSettings::asynchronous(std::chrono::milliseconds(1));
        const auto silent = NotificationSettings::off();
        const DataTable row([](const std::function<void()>& visiting) { visiting(); });
        const auto image = [&](const QByteArray& model, const auto& notifications) {
            row("image, " + model, [=] { visit<AOIWidget>(model, notifications, 250); });
        };
        image("current", asynchronous);
        image("current", silent);
        for (const char* model : {"current", "coarse", "bayer"})
            image(model, synchronous);
        const auto automatic = [&](const QByteArray& model, const auto& notifications) {
            row("automatic, " + model, [=] { visit<AutoROIWidget>(model, notifications, 160); });
        };
        for (const char* model : {"aoi", "aoi-plain", "automode-fixed", "automode-dynamic", "dsp",
                                  "mixed-aoi-automode"})
            automatic(model, synchronous);
        automatic("current", asynchronous);
        for (const char* model : {"automode-dynamic", "dsp"})
            automatic(model, silent);
    }
    void staysWithTheCamera() { runRow(); }
};

QTEST_MAIN(RegionVisitsTest)

#include "RegionVisitsTest.moc"

#include "MessageHandlerGuard.h"
#include "RegionPage.h"
#include "regions/AutoRegion.h"
#include "regions/DspRegion.h"

#include <random>

using Mode = sim::NotificationSettings::Mode;

Q_DECLARE_METATYPE(Mode)

namespace {

bool tellsEdges(const AutoROIPage& p)
{
    return p.camera->has("DSPSubregionLeft");
}

/// The fields with a feature behind them.
QVector<QPair<QString, QString>> boundFields(const AutoROIPage& p)
{
    const QString dsp = "DSPSubregion";
    if (tellsEdges(p))
        return {{"spinLeft", dsp + "Left"},
                {"spinTop", dsp + "Top"},
                {"spinRight", dsp + "Right"},
                {"spinBottom", dsp + "Bottom"}};
    const QString family
        = p.camera->has("AutofunctionAOIWidth") ? "AutofunctionAOI" : "AutoModeRegion";
    return {{"spinLeft", family + "OffsetX"},
            {"spinTop", family + "OffsetY"},
            {"spinWidth", family + "Width"},
            {"spinHeight", family + "Height"}};
}

/// What a person or another client does next.
class Visitor
{
public:
    /// @param isSilent the camera tells nothing; who wants to see its changes comes back
    Visitor(AutoROIPage& page, bool isSilent)
        : m_page(page)
        , m_isSilent(isSilent)
    {
    }

    /// Whether a strict camera has to take all that the page writes.
    bool act()
    {
        static const char* const buttons[]{"btnFull", "btnHalf", "btnQuarter"};
        switch (below(9)) {
        case 0:
            m_page.click(buttons[below(3)]);
            break;
        case 1: {
            QDoubleSpinBox* const field = m_page.field(boundFields(m_page)[below(4)].first);
            field->setValue(below(int(field->maximum()) + 1));
            return !tellsEdges(m_page); // edges may be typed across each other
        }
        case 2:
            writeAsOther(boundFields(m_page)[below(4)].second, below(240) * 8);
            break;
        case 3:
            writeAsOther(below(2) ? "Width" : "Height", 64 + below(200) * 8);
            break;
        case 4:
            m_page.comeBack();
            break;
        default:
            dragSomewhere();
        }
        return true;
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    void writeAsOther(const QString& feature, std::int64_t value)
    {
        m_page.camera->writeAsOtherClient(feature.toStdString(), value);
        if (m_isSilent)
            m_page.comeBack();
    }

    void dragSomewhere()
    {
        const QRect band = m_page.band();
        const QPoint edges[]{band.center(), band.bottomRight() - QPoint(1, 1), band.topLeft(),
                             QPoint(band.center().x(), band.top())};
        const auto writes = m_page.writes();
        press(m_page.label, edges[below(4)]);
        QPoint pointer;
        for (int i = 0; i < 3; ++i) {
            pointer
                = {below(m_page.label->width() + 60) - 30, below(m_page.label->height() + 60) - 30};
            sendMouse(m_page.label, QEvent::MouseMove, pointer);
            m_page.settle();
        }
        QCOMPARE(m_page.writes(), writes);
        release(m_page.label, pointer);
    }

    AutoROIPage& m_page;
    bool m_isSilent;
    std::mt19937 m_random{11};
};

SensorRegion drawnRegion(const AutoROIPage& p)
{
    const QSize sensor = p.label->sensorSize();
    const RegionLimits limits{sensor.width(), sensor.height()};
    QVector<double> bound;
    for (const auto& [field, feature] : boundFields(p))
        bound << p.value(feature);
    if (tellsEdges(p))
        return drawnDspRegion({bound[0], bound[1], bound[2], bound[3]}, limits);
    AutoRegionFields fields;
    fields.left = bound[0];
    fields.top = bound[1];
    fields.width = bound[2];
    fields.height = bound[3];
    const QPointF origin(p.value("AutoModeRegionOffsetX"), p.value("AutoModeRegionOffsetY"));
    return drawnAutoRegion(fields, origin, limits);
}

} // namespace

class AutoROIVisitsTest : public QObject
{
    Q_OBJECT

private slots:
    void staysWithTheCamera_data()
    {
        QTest::addColumn<Mode>("mode");
        for (const char* model : {"aoi", "aoi-plain", "automode-fixed", "automode-dynamic", "dsp",
                                  "mixed-aoi-automode"})
            QTest::newRow(model) << Mode::Synchronous;
        QTest::newRow("current") << Mode::Asynchronous;
        for (const char* model : {"automode-dynamic", "dsp"})
            QTest::newRow(model) << Mode::Off;
    }

    /// Most cameras refuse a region that reaches out of the image, at any step of the way.
    void staysWithTheCamera()
    {
        QFETCH(Mode, mode);
        AutoROIPage p(QTest::currentDataTag(), [mode](sim::Camera& camera) {
            sim::NotificationSettings notifications;
            notifications.mode = mode;
            camera.setNotifications(notifications);
        });
        Visitor visitor(p, mode == Mode::Off);
        for (int i = 0; i < 120; ++i) {
            p.camera->journal().clear();
            const bool takesAll = visitor.act();
            if (QTest::currentTestFailed())
                return;
            QVERIFY2(!takesAll || !p.anyRefused(), qPrintable(p.writes().join(", ")));
            p.settle();
            for (const auto& [field, feature] : boundFields(p))
                QCOMPARE(int(p.field(field)->value()), p.value(feature));
            QCOMPARE(text(p.label->region()), text(drawnRegion(p)));
        }
    }

private:
    MessageHandlerGuard m_guard;
};

QTEST_MAIN(AutoROIVisitsTest)

#include "AutoROIVisitsTest.moc"

#include "DataTable.h"
#include "regions/Visitor.h"
#include "regions/automatic/AutoRegionRules.h"

using Mode = sim::NotificationSettings::Mode;

namespace {

bool tellsEdges(const AutoROIPage& p)
{
    return p.camera->has("DSPSubregionLeft");
}

class AutoROIVisitor : public Visitor<AutoROIWidget>
{
public:
    explicit AutoROIVisitor(AutoROIPage& page)
        : Visitor(page, boundFields(page))
    {
    }

protected:
    bool type(int which, QDoubleSpinBox& field, int value) override
    {
        Visitor::type(which, field, value);
        return !tellsEdges(m_page); // edges may be typed across each other
    }

    void changeImage() override
    {
        writeAsOther(below(2) ? "Width" : "Height", 64 + below(200) * 8);
    }

    SensorRegion drawn() const override
    {
        const QSize sensor = m_page.label->sensorSize();
        const RegionLimits limits{sensor.width(), sensor.height()};
        QVector<double> bound;
        for (const auto& field : m_fields)
            bound << m_page.value(field.second);
        if (tellsEdges(m_page))
            return drawnByEdges({spanBetween(bound[0], bound[2]), spanBetween(bound[1], bound[3])},
                                limits);
        const QPointF origin(m_page.value("AutoModeRegionOffsetX"),
                             m_page.value("AutoModeRegionOffsetY"));
        return drawnBySize({{bound[0], bound[2]}, {bound[1], bound[3]}}, origin, limits);
    }

private:
    static Fields boundFields(const AutoROIPage& p)
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
};

} // namespace

class AutoROIVisitsTest : public QObject
{
    Q_OBJECT

private slots:
    /// Most cameras refuse a region that reaches out of the image, at any step of the way.
    void staysWithTheCamera_data()
    {
        const DataTable row([](Mode mode) {
            sim::NotificationSettings notifications;
            notifications.mode = mode;
            AutoROIPage p(QTest::currentDataTag(),
                          [&](sim::Camera& camera) { camera.setNotifications(notifications); });
            AutoROIVisitor visitor(p);
            visit(p, visitor, 160);
        });
        for (const char* model : {"aoi", "aoi-plain", "automode-fixed", "automode-dynamic", "dsp",
                                  "mixed-aoi-automode"})
            row(model, Mode::Synchronous);
        row("current", Mode::Asynchronous);
        for (const char* model : {"automode-dynamic", "dsp"})
            row(model, Mode::Off);
    }
    void staysWithTheCamera() { runRow(); }
};

QTEST_MAIN(AutoROIVisitsTest)

#include "AutoROIVisitsTest.moc"

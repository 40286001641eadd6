#include "AutoROIPage.h"
#include "MessageHandlerGuard.h"
#include "regions/AutoRegion.h"
#include "regions/DspRegion.h"

#include <random>

namespace {

/// The fields with a feature behind them.
QVector<QPair<const char*, QString>> boundFields(const AutoROIPage& p)
{
    QVector<QPair<const char*, QString>> fields;
    if (p.camera->has("DSPSubregionLeft")) {
        for (const char* edge : {"Left", "Top", "Right", "Bottom"})
            fields.append({edge, QString("DSPSubregion") + edge});
        return fields;
    }
    const QString family
        = p.camera->has("AutofunctionAOIWidth") ? "AutofunctionAOI" : "AutoModeRegion";
    return {{"Left", family + "OffsetX"},
            {"Top", family + "OffsetY"},
            {"Width", family + "Width"},
            {"Height", family + "Height"}};
}

/// What a person or another client does next.
class Visitor
{
public:
    /// @param isSilent the camera tells nothing; who wants to see its changes comes back
    Visitor(AutoROIPage& page, bool isSilent, unsigned seed)
        : m_page(page)
        , m_isSilent(isSilent)
        , m_random(seed)
    {
    }

    /// Whether a strict camera has to take all that the page writes.
    bool act()
    {
        static const char* const buttons[]{"btnFull", "btnHalf", "btnQuarter"};
        switch (below(9)) {
        case 0:
            m_page.click(buttons[below(3)]);
            return true;
        case 1: {
            const auto fields = boundFields(m_page);
            QDoubleSpinBox* const field
                = m_page.field(qPrintable(QString("spin") + fields[below(4)].first));
            field->setValue(below(int(field->maximum()) + 1));
            return !m_page.camera->has("DSPSubregionLeft"); // edges may be typed across each other
        }
        case 2:
            m_page.camera->writeAsOtherClient(boundFields(m_page)[below(4)].second.toStdString(),
                                              std::int64_t{below(240) * 8});
            if (m_isSilent)
                comeBack();
            return true;
        case 3:
            m_page.camera->writeAsOtherClient(below(2) ? "Width" : "Height",
                                              std::int64_t{64 + below(200) * 8});
            if (m_isSilent)
                comeBack();
            return true;
        case 4:
            comeBack();
            return true;
        default:
            dragSomewhere();
            return true;
        }
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    void comeBack()
    {
        m_page.page->hide();
        m_page.page->show();
    }

    void dragSomewhere()
    {
        const QRect band = m_page.label->findChild<QRubberBand*>()->geometry();
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
    std::mt19937 m_random;
};

/// The numbers of the bound fields, then the image size.
QMap<QString, int> numbers(const AutoROIPage& p)
{
    QMap<QString, int> numbers{{"Width", p.value("Width")}, {"Height", p.value("Height")}};
    for (const auto& [name, feature] : boundFields(p))
        numbers[feature] = p.value(feature);
    return numbers;
}

bool isInside(const AutoROIPage& p, const QMap<QString, int>& numbers)
{
    const auto bound = boundFields(p);
    const auto at = [&](int index) { return numbers[bound[index].second]; };
    if (p.camera->has("DSPSubregionLeft"))
        return at(0) < at(2) && at(1) < at(3) && at(2) <= numbers["Width"]
            && at(3) <= numbers["Height"];
    return at(0) + at(2) <= numbers["Width"] && at(1) + at(3) <= numbers["Height"];
}

/// Whether a region that was inside the image stayed there after each of the page's writes.
bool stayedInside(const AutoROIPage& p, QMap<QString, int> numbers)
{
    if (!isInside(p, numbers))
        return true;
    for (const sim::JournalEntry& write : p.camera->journal().writes()) {
        const QString name = QString::fromStdString(write.feature);
        if (numbers.contains(name) && write.result == ZebErrorSuccess)
            numbers[name] = int(write.value.toInteger());
        if (!isInside(p, numbers))
            return false;
    }
    return true;
}

SensorRegion drawnRegion(const AutoROIPage& p)
{
    const QSize sensor = p.label->sensorSize();
    const RegionLimits limits{sensor.width(), sensor.height()};
    if (p.camera->has("DSPSubregionLeft"))
        return drawnDspRegion(
            {double(p.value("DSPSubregionLeft")), double(p.value("DSPSubregionTop")),
             double(p.value("DSPSubregionRight")), double(p.value("DSPSubregionBottom"))},
            limits);
    AutoRegionFields fields;
    const auto bound = boundFields(p);
    fields.left = p.value(bound[0].second);
    fields.top = p.value(bound[1].second);
    fields.width = p.value(bound[2].second);
    fields.height = p.value(bound[3].second);
    return drawnAutoRegion(
        fields, QPointF(p.value("AutoModeRegionOffsetX"), p.value("AutoModeRegionOffsetY")),
        limits);
}

} // namespace

class AutoROIVisitsTest : public QObject
{
    Q_OBJECT

private slots:
    void staysWithTheCamera_data()
    {
        using Mode = sim::NotificationSettings::Mode;
        QTest::addColumn<int>("mode");
        for (const char* model : {"aoi", "aoi-plain", "automode-fixed", "automode-dynamic", "dsp",
                                  "mixed-aoi-automode"})
            QTest::newRow(model) << int(Mode::Synchronous);
        QTest::newRow("current") << int(Mode::Asynchronous);
        for (const char* model : {"automode-dynamic", "dsp"})
            QTest::newRow(model) << int(Mode::Off);
    }

    void staysWithTheCamera()
    {
        QFETCH(int, mode);
        sim::NotificationSettings notifications;
        notifications.mode = static_cast<sim::NotificationSettings::Mode>(mode);
        AutoROIPage p(QTest::currentDataTag(), {}, notifications);
        Visitor visitor(p, notifications.mode == sim::NotificationSettings::Mode::Off, 11);
        const bool isStrict = QLatin1String("automode-fixed") != QTest::currentDataTag();
        for (int i = 0; i < 120; ++i) {
            p.camera->journal().clear();
            const QMap<QString, int> before = numbers(p);
            const bool takesAll = visitor.act();
            if (QTest::currentTestFailed())
                return;
            QVERIFY2(!takesAll || !p.anyRefused(), qPrintable(p.writes().join(", ")));
            QVERIFY2(!isStrict || !takesAll || stayedInside(p, before),
                     qPrintable(p.writes().join(", ")));
            p.settle();
            for (const auto& [name, feature] : boundFields(p))
                QCOMPARE(int(p.field(qPrintable(QString("spin") + name))->value()),
                         p.value(feature));
            const SensorRegion drawn = drawnRegion(p);
            const SensorRegion shown = p.label->region();
            QVERIFY2(drawn == shown,
                     qPrintable(QString("%1: %2 %3 %4 %5, not %6 %7 %8 %9")
                                    .arg(i)
                                    .arg(shown.top)
                                    .arg(shown.left)
                                    .arg(shown.width)
                                    .arg(shown.height)
                                    .arg(drawn.top)
                                    .arg(drawn.left)
                                    .arg(drawn.width)
                                    .arg(drawn.height)));
        }
    }

private:
    MessageHandlerGuard m_guard;
};

QTEST_MAIN(AutoROIVisitsTest)

#include "AutoROIVisitsTest.moc"

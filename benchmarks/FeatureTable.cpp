#include "PlainCamera.h"
#include "ProcessorTime.h"
#include "Row.h"
#include "Screen.h"
#include "features/FeatureManager.h"
#include "featuretable/FeaturesTableWidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTableWidget>

// A table of a thousand features: what an action and the frame after it take.

namespace {

constexpr int rows = 1000;
constexpr double frameMilliseconds = 7.0;
constexpr QSize windowSize(900, 900);

class Table
{
public:
    Table()
        : m_camera(cameraWith(rows))
        , m_manager(m_camera.wrappers())
        , m_names(m_manager.GetFeatureNames())
        , m_table(new FeaturesTableWidget(m_names, &m_manager, nullptr))
        , m_window(Screen::show(m_table, windowSize))
    {
    }

    void pageDown()
    {
        auto* view = m_table->findChild<QTableWidget*>();
        const bool isAtEnd = view->currentRow() == view->rowCount() - 1;
        QKeyEvent press(QEvent::KeyPress, isAtEnd ? Qt::Key_Home : Qt::Key_PageDown,
                        isAtEnd ? Qt::ControlModifier : Qt::NoModifier);
        QApplication::sendEvent(view, &press);
        paint();
    }

    void filter()
    {
        static const QString texts[]
            = {QStringLiteral("C"), QStringLiteral("Cu"), QStringLiteral("Custom1"), QString()};
        m_table->setFilter(texts[m_steps % 4]);
        paint();
    }

    void changeValues()
    {
        ++m_steps;
        for (const QString& name : changedNames()) {
            const ZebCPP::FeaturePtr feature = m_camera.feature(name.toLatin1().constData());
            feature->SetValue(std::int64_t{m_steps % 100});
        }
    }

    void refresh()
    {
        m_table->updateFeatures(changedNames());
        paint();
    }

    int callsWhilePainting() const { return m_callsWhilePainting; }

private:
    /// As many as change between two ticks; the integers among them have new values.
    QStringList changedNames() const { return m_names.mid(m_steps * 20 % rows, 20); }

    void paint()
    {
        m_camera.resetCalls();
        Screen::flush();
        m_callsWhilePainting += static_cast<int>(m_camera.calls());
    }

    PlainCamera m_camera;
    FeatureManager m_manager;
    QStringList m_names;
    FeaturesTableWidget* m_table;
    std::unique_ptr<QWidget> m_window;
    int m_steps = 0;
    int m_callsWhilePainting = 0;
};

/// The processor's time stands beside the clock's.
Measurement frames(int count, const std::function<void(Table&)>& action)
{
    Table table;
    std::vector<double> samples;
    std::vector<double> processorSamples;
    for (int i = 0; i < count + 10; ++i) {
        table.changeValues();
        const double start = processorSeconds();
        const double seconds = secondsOf([&] { action(table); });
        if (i < 10)
            continue;
        samples.push_back(seconds);
        processorSamples.push_back(processorSeconds() - start);
    }
    const Percentiles times = percentilesOf(samples);
    const Percentiles processorTimes = percentilesOf(processorSamples);
    return {times.p99 * 1e3,
            {{"SDK-calls-while-painting", table.callsWhilePainting()},
             {"processor-p50", processorTimes.p50 * 1e3},
             {"processor-p99", processorTimes.p99 * 1e3}},
            times};
}

} // namespace

void addFeatureTableRows()
{
    const char* unit = "milliseconds, p99";
    addMeasurement("table/open", "milliseconds", std::nullopt,
                   [] { return Measurement{secondsOf([] { Table(); }) * 1e3}; });
    addMeasurement("table/scroll", unit, frameMilliseconds,
                   [] { return frames(300, &Table::pageDown); });
    addMeasurement("table/filter", unit, frameMilliseconds,
                   [] { return frames(200, &Table::filter); });
    addMeasurement("table/refresh-20", unit, frameMilliseconds,
                   [] { return frames(200, &Table::refresh); });
    addMeasurement("table/camera-while-painting", "SDK calls", 0.0, [] {
        double calls = 0.0;
        for (const auto& action : {&Table::pageDown, &Table::filter, &Table::refresh})
            calls += frames(20, action).details.at("SDK-calls-while-painting");
        return Measurement{calls};
    });
}

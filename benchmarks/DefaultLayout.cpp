#include "PlainCamera.h"
#include "Row.h"
#include "Screen.h"
#include "multiregion/MultiROIWidget.h"
#include "simulator/Camera.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

// The default configuration of the multi-region page, on a simulated camera.

namespace {

constexpr QSize windowSize(1000, 1000);

struct LayoutCost
{
    double seconds = 0.0;
    double writes = 0.0;
    double calls = 0.0;  ///< names, which are asked for in every look-up, apart
    double rounds = 0.0; ///< how often the switches of all regions were read
};

void answerYes()
{
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        box->button(QMessageBox::Yes)->click();
}

LayoutCost layoutCost(int regions)
{
    sim::Camera camera(cameraWith(0, regions));
    camera.journal().setCapacity(1 << 20);
    const auto features = camera.features();
    auto* page = new MultiROIWidget(
        BaseTabPluginWidget::FeatureList::create(features.begin(), features.end()), nullptr);
    const auto window = Screen::show(page, windowSize);
    camera.flushNotifications();
    Screen::flush();
    camera.journal().clear();

    LayoutCost cost;
    cost.seconds = secondsOf([page] {
        QTimer::singleShot(0, page, answerYes);
        page->loadDefaultConfiguration();
        Screen::flush();
    });
    const sim::Journal& journal = camera.journal();
    cost.writes = static_cast<double>(journal.writes().size());
    cost.calls = static_cast<double>(journal.count() - journal.count(sim::Operation::GetName));
    cost.rounds
        = static_cast<double>(journal.entries("SubRegionMode", {sim::Operation::GetValue}).size())
        / regions;
    return cost;
}

} // namespace

void addDefaultLayoutRows()
{
    for (const int regions : {4, 64}) {
        addMeasurement("default-layout/" + std::to_string(regions), "milliseconds", std::nullopt,
                       [regions] {
                           const LayoutCost cost = layoutCost(regions);
                           return Measurement{cost.seconds * 1e3,
                                              {{"writes", cost.writes},
                                               {"SDK-calls", cost.calls},
                                               {"readings-of-all-regions", cost.rounds}}};
                       });
    }
    addMeasurement("default-layout/growth", "SDK calls a region, 64 against 4", 1.2, [] {
        return Measurement{layoutCost(64).calls / 64.0 / (layoutCost(4).calls / 4.0)};
    });
}

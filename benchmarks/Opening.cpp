#include "Effort.h"
#include "PlainCamera.h"
#include "Row.h"
#include "Screen.h"
#include "imageformat/ImageFormatWidget.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AOIWidget.h"
#include "ui_AutoROIWidget.h"
#include "ui_ImageFormatWidget.h"

#include <deque>
#include <functional>
#include <vector>

// Opening the page and painting it once, on cameras with few and with very many features.

namespace {

constexpr QSize windowSize(1000, 900);
constexpr int pixelsWide = 5120;
constexpr int pixelsHigh = 3840;

template <typename Form> QWidget* formPage(const QString& groupName)
{
    auto* page = new QWidget;
    Form().setupUi(page);
    auto* group = page->findChild<QWidget*>(groupName);
    group->layout()->addWidget(new RubberBandLabel(pixelsWide, pixelsHigh, Qt::blue, group));
    return page;
}

/// What the page consists of, without a camera.
QWidget* formsAlone(const QString& styleSheet)
{
    auto* page = new QWidget;
    page->setStyleSheet(styleSheet);
    Ui::ImageFormatWidget form;
    form.setupUi(page);
    form.tabWidget->addTab(formPage<Ui::AOIWidget>(QStringLiteral("gb_AOI")),
                           QStringLiteral("AOI"));
    form.tabWidget->addTab(formPage<Ui::AutoROIWidget>(QStringLiteral("gb_AutoROI")),
                           QStringLiteral("Auto AOI"));
    form.tabWidget->setCurrentIndex(0);
    return page;
}

/// Holds the page that was opened last.
class Desk
{
public:
    void open(QWidget* page) { m_window = Screen::show(page, windowSize); }
    void clear() { m_window.reset(); }

private:
    std::unique_ptr<QWidget> m_window;
};

Contest openingContest(int features)
{
    const auto camera = std::make_shared<PlainCamera>(cameraWith(features, 0));
    const auto desk = std::make_shared<Desk>();
    const auto openPage = [=] { desk->open(new ImageFormatWidget(camera->features(), nullptr)); };
    const QString styleSheet = ImageFormatWidget(camera->features(), nullptr).styleSheet();
    camera->resetCalls();
    openPage();
    const auto calls = static_cast<double>(camera->calls());
    return {openPage,
            [=] { desk->open(formsAlone(styleSheet)); },
            {{"features", camera->features()->size()}, {"SDK-calls", calls}},
            [desk] { desk->clear(); }};
}

void createPage(const PlainCamera& camera)
{
    const ImageFormatWidget page(camera.features(), nullptr);
}

/// How many times as much 10000 more features cost when there are 11000 already instead of 1000: of
/// the medians of rounds, each too short for the machine to change its pace within.
double openingGrowth(int rounds, const std::function<double(PlainCamera&)>& cost)
{
    std::deque<PlainCamera> cameras;
    for (const int count : {1000, 11000, 21000})
        cameras.emplace_back(cameraWith(count, 0));
    createPage(cameras[0]); // the first of a process takes more
    std::vector<double> lower;
    std::vector<double> upper;
    for (int round = 0; round < rounds; ++round) {
        const double few = cost(cameras[0]);
        const double more = cost(cameras[1]);
        lower.push_back(more - few);
        upper.push_back(cost(cameras[2]) - more);
    }
    return percentilesOf(upper).p50 / percentilesOf(lower).p50;
}

double callsOfOpening(PlainCamera& camera)
{
    camera.resetCalls();
    createPage(camera);
    return static_cast<double>(camera.calls());
}

} // namespace

void addOpeningRows()
{
    const std::pair<int, std::optional<double>> rows[]
        = {{50, std::nullopt}, {400, 2.0}, {1000, std::nullopt}, {5000, std::nullopt}};
    for (const auto& [features, target] : rows)
        addComparison("open/" + std::to_string(features), "the same forms without a camera", target,
                      {40, 4}, [features = features] { return openingContest(features); });
    const auto effort = std::make_shared<Effort>();
    const int rounds = effort->countsInstructions() ? 1 : 200;
    const std::string features = ", 10000 features on 11000 and on 1000";
    addMeasurement("open/growth", effort->unit() + features, 1.2, [=] {
        const auto cost
            = [&](const PlainCamera& camera) { return effort->of([&] { createPage(camera); }); };
        return Measurement{
            effort->inRow("open/growth", [&] { return openingGrowth(rounds, cost); })};
    });
    addMeasurement("open/growth/calls", "SDK calls" + features, 1.2,
                   [] { return Measurement{openingGrowth(1, callsOfOpening)}; });
}

#include "PlainCamera.h"
#include "ProcessorTime.h"
#include "Row.h"
#include "Screen.h"
#include "imageformat/ImageFormatWidget.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AOIWidget.h"
#include "ui_AutoROIWidget.h"
#include "ui_ImageFormatWidget.h"

#include <deque>
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

/// Of the processor, for an opening of each, one after the other.
std::vector<double> openingSeconds(const std::deque<PlainCamera>& cameras)
{
    Desk desk;
    std::vector<double> seconds;
    for (const PlainCamera& camera : cameras) {
        desk.clear();
        const double start = processorSeconds();
        desk.open(new ImageFormatWidget(camera.features(), nullptr));
        seconds.push_back(processorSeconds() - start);
    }
    return seconds;
}

/// How many times as long 4000 more features take when there are 5000 already instead of 1000: the
/// median of rounds, each of which lasts too short for the machine to change its pace within.
double openingGrowth(int rounds)
{
    std::deque<PlainCamera> cameras;
    for (const int count : {1000, 5000, 9000})
        cameras.emplace_back(cameraWith(count, 0));
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        const std::vector<double> seconds = openingSeconds(cameras);
        ratios.push_back((seconds[2] - seconds[1]) / (seconds[1] - seconds[0]));
    }
    return percentilesOf(ratios).p50;
}

} // namespace

void addOpeningRows()
{
    const std::pair<int, std::optional<double>> rows[]
        = {{50, std::nullopt}, {400, 2.0}, {1000, std::nullopt}, {5000, std::nullopt}};
    for (const auto& [features, target] : rows)
        addComparison("open/" + std::to_string(features), "the same forms without a camera", target,
                      {40, 4}, [features = features] { return openingContest(features); });
    addMeasurement("open/growth", "4000 features on top of 5000 and of 1000", 1.2,
                   [] { return Measurement{openingGrowth(31)}; });
}

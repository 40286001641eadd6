#include "PageWithFields.h"
#include "PlainCamera.h"
#include "Row.h"
#include "Screen.h"
#include "multiregion/MultiROIWidget.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "regions/AOIWidget.h"
#include "regions/label/RubberBandLabel.h"
#include "simulator/Camera.h"
#include "widgets/RoundButton.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRubberBand>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <cmath>

// What a person's action asks the camera until the page is at rest. On a real camera each question
// is a register read of about a millisecond, during which the window stands still.

namespace {

constexpr int cameraFeatures = 44;
constexpr int changedNames = 20;
constexpr int settlingTime = 2300; ///< two ticks
constexpr QSize windowSize(1000, 1000);

/// The page over a camera with regions side by side. Where they are arranged they lie below each
/// other, and the last one is off.
class QuestionedPage
{
public:
    explicit QuestionedPage(int regions, const char* arrangement = "Free", int fields = 0)
        : m_camera(
            cameraWith(fields > 0 ? 200 : cameraFeatures, regions, sim::SensorSize::megapixels5()))
        , m_fields(PageWithFields::integers(fields))
    {
        m_camera.setNotifications(sim::NotificationSettings::synchronous());
        m_camera.force("MultipleRegionArrangement", arrangement);
        const bool isFree = arrangement == QString("Free");
        const int columns = int(std::ceil(std::sqrt(regions)));
        const QSize cell(2592 / columns / 8 * 8, 1944 / columns / 8 * 8);
        for (int region = 0; region < regions; ++region) {
            const bool isOn = isFree || region + 1 < regions;
            m_camera.forceAt("SubRegionMode", region, isOn ? "On" : "Off");
            if (!isFree)
                continue;
            m_camera.forceAt("SubRegionOffsetX", region, region % columns * cell.width());
            m_camera.forceAt("SubRegionOffsetY", region, region / columns * cell.height());
            m_camera.forceAt("SubRegionWidth", region, cell.width() / 16 * 8);
            m_camera.forceAt("SubRegionHeight", region, cell.height() / 16 * 8);
        }
    }

    Measurement creation()
    {
        return measure([this] { create(); });
    }

    /// Once the page shows @p Part, and is at rest after what comes before.
    template <typename Part>
    Measurement of(
        const std::function<void(Part&)>& action,
        const std::function<void(Part&)>& before = [](Part&) {})
    {
        create();
        static_cast<void>(m_window.release());
        m_window = Screen::show(m_page, windowSize);
        auto* const tabs = m_page->findChild<QTabWidget*>(QStringLiteral("tabWidget"));
        auto* const part = m_page->findChild<Part*>();
        if (!part)
            throw std::logic_error("the page is not whole");
        tabs->setCurrentIndex(tabs->indexOf(part));
        QTest::qWait(settlingTime);
        before(*part);
        QTest::qWait(settlingTime);
        return measure([&] { action(*part); });
    }

    void changeFields()
    {
        for (const QString& name : qAsConst(m_fields))
            m_camera.writeAsOtherClient(name.toStdString(), 7);
    }

private:
    void create()
    {
        const auto list = m_camera.features();
        m_page = new PageWithFields(
            BaseTabPluginWidget::FeatureList::create(list.begin(), list.end()), m_fields);
        m_window.reset(m_page);
    }

    Measurement measure(const std::function<void()>& action)
    {
        sim::Journal& journal = m_camera.journal();
        journal.clear();
        const double seconds = secondsOf(action);
        const auto atOnce = static_cast<double>(journal.questions());
        const auto writes = static_cast<double>(journal.writes().size());
        if (m_page->isVisible())
            QTest::qWait(settlingTime);
        const auto all = static_cast<double>(journal.questions());
        return {all,
                {{"at-once", atOnce},
                 {"writes", static_cast<double>(journal.writes().size())},
                 {"ms-of-1-ms-each", atOnce + writes + seconds * 1e3}}};
    }

    sim::Camera m_camera;
    const QStringList m_fields;
    PageWithFields* m_page = nullptr;
    std::unique_ptr<QWidget> m_window;
};

/// A band becomes smaller; pressing and moving come before.
template <typename Part, typename Label> Measurement releaseOn(QuestionedPage&& page)
{
    QPoint end;
    const auto drag = [&](Part& part) {
        auto* const label = part.template findChild<Label*>();
        const QPoint corner
            = label->template findChild<QRubberBand*>()->geometry().bottomRight() - QPoint(2, 2);
        end = corner - QPoint(40, 30);
        Screen::press(label, corner);
        Screen::move(label, (corner + end) / 2);
        Screen::move(label, end);
    };
    const auto release
        = [&](Part& part) { Screen::release(part.template findChild<Label*>(), end); };
    return page.template of<Part>(release, drag);
}

void typeWidth(AOIWidget& page)
{
    auto* const field = page.findChild<QDoubleSpinBox*>(QStringLiteral("spinWidth"));
    field->selectAll();
    QTest::keyClicks(field, "640");
    QTest::keyClick(field, Qt::Key_Return);
}

void choosePreset(AOIWidget& page)
{
    page.findChild<QPushButton*>(QStringLiteral("btnHalf"))->click();
}

void switchLastOn(MultiROIWidget& page)
{
    const auto buttons = page.findChildren<RoundButton*>();
    for (RoundButton* button : buttons) {
        if (!button->isChecked())
            button->click();
    }
}

void loadDefaults(MultiROIWidget& page)
{
    QTimer::singleShot(0, &page, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Yes)->click();
    });
    page.loadDefaultConfiguration();
}

/// For the target, of four regions.
void addRows(const std::string& name, std::optional<double> target,
             const std::function<Measurement(int)>& measure, std::vector<int> regions = {1, 4, 16})
{
    for (const int count : regions)
        addMeasurement("camera questions/" + name + "/" + std::to_string(count), "questions",
                       count == 4 ? target : std::nullopt, [=] { return measure(count); });
}

} // namespace

void addCameraQuestionRows()
{
    const auto shown = [](auto action, const char* arrangement = "Free") {
        return [=](int regions) {
            return QuestionedPage(regions, arrangement).of<MultiROIWidget>(action);
        };
    };
    const auto shownRegion = [](void (*action)(AOIWidget&)) {
        return [=](int regions) { return QuestionedPage(regions).of<AOIWidget>(action); };
    };
    addRows("creating the page", 200,
            [](int regions) { return QuestionedPage(regions).creation(); });
    addRows("typed width", std::nullopt, shownRegion(typeWidth), {4});
    addRows(
        "release of the region", 30,
        [](int regions) { return releaseOn<AOIWidget, RubberBandLabel>(QuestionedPage(regions)); },
        {4});
    addRows("preset", std::nullopt, shownRegion(choosePreset), {4});
    addRows("switching a region on", 120, shown(switchLastOn, "Vertical"), {2, 4, 16});
    addRows("load defaults", 300, shown(loadDefaults));
    addRows("release among regions", 80, [](int regions) {
        return releaseOn<MultiROIWidget, MultiRubberBandLabel>(QuestionedPage(regions));
    });
    addMeasurement("camera questions/20 changed names", "questions a name", 3, [] {
        QuestionedPage page(4, "Free", changedNames);
        Measurement found = page.of<AOIWidget>([&](AOIWidget&) { page.changeFields(); });
        // Without the observer's, which tells the value that it reads.
        found.value = (found.value - found.details["at-once"]) / changedNames;
        return found;
    });
}

#include "Invariants.h"

#include "UserInput.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRubberBand>
#include <QSpinBox>
#include <QTabWidget>

#include <cmath>

namespace {

/// A field of a region page and the features it shows, of which the camera's first counts.
struct Field
{
    const char* page;
    const char* name;
    const char* features;
};

constexpr Field fields[]{
    {"AOIWidget", "spinLeft", "OffsetX"},
    {"AOIWidget", "spinTop", "OffsetY"},
    {"AOIWidget", "spinWidth", "Width"},
    {"AOIWidget", "spinHeight", "Height"},
    {"AutoROIWidget", "spinLeft", "DSPSubregionLeft AutofunctionAOIOffsetX AutoModeRegionOffsetX"},
    {"AutoROIWidget", "spinTop", "DSPSubregionTop AutofunctionAOIOffsetY AutoModeRegionOffsetY"},
    {"AutoROIWidget", "spinRight", "DSPSubregionRight"},
    {"AutoROIWidget", "spinBottom", "DSPSubregionBottom"},
    {"AutoROIWidget", "spinWidth", "AutofunctionAOIWidth AutoModeRegionWidth"},
    {"AutoROIWidget", "spinHeight", "AutofunctionAOIHeight AutoModeRegionHeight"},
    {"AutoROIWidget", "spinExpAutoMin", "ExposureAutoMin"},
    {"AutoROIWidget", "spinExpAutoMax", "ExposureAutoMax"},
};

bool isOn(const char* page, const QWidget* widget)
{
    while (widget && !widget->inherits(page))
        widget = widget->parentWidget();
    return widget;
}

QRect rectOf(const sim::Snapshot::Region& region)
{
    return {int(region.x), int(region.y), int(region.width), int(region.height)};
}

/// Where the page shows something else than the camera holds.
class Comparison
{
public:
    explicit Comparison(Session& session)
        : m_session(session)
        , m_camera(session.camera())
        , m_state(m_camera.state())
    {
        for (const QWidget* const widget : usable<QWidget>(m_session))
            compareBoundField(widget);
        for (const QDoubleSpinBox* const box : usable<QDoubleSpinBox>(m_session))
            compareRegionField(box);
        for (const QLabel* const label : usable<QLabel>(m_session)) {
            if (label->inherits("MultiRubberBandLabel") && m_state.hasMultipleRegions)
                compareBands(label);
            else if (isOn("AOIWidget", label) && label->findChild<QRubberBand*>())
                compareBand(label);
        }
        for (const QAbstractItemView* const table : usable<QAbstractItemView>(m_session)) {
            if (table->inherits("RegionTableWidget"))
                compareTable(table);
        }
    }

    QStringList findings;

private:
    void compare(const QString& what, const QString& shown, const QString& held)
    {
        if (shown != held)
            findings << QString("%1 shows %2, the camera holds %3").arg(what, shown, held);
    }
    void compare(const QString& what, double shown, double held, double tolerance)
    {
        if (!(std::abs(shown - held) <= tolerance))
            compare(what, QString::number(shown), QString::number(held));
    }

    // Named after the feature, with three letters before.
    void compareBoundField(const QWidget* widget)
    {
        const QString feature = widget->objectName().mid(3);
        if (!m_camera.has(feature))
            return;
        const QString held = m_camera.text(feature);
        if (const auto* const box = qobject_cast<const QSpinBox*>(widget))
            compare(feature, QString::number(box->value()), held);
        else if (const auto* const list = qobject_cast<const QComboBox*>(widget))
            compare(feature, list->currentText(), held);
        else if (const auto* const check = qobject_cast<const QCheckBox*>(widget))
            compare(feature, check->isChecked() ? "true" : "false", held);
    }

    void compareRegionField(const QDoubleSpinBox* box)
    {
        for (const auto& [page, name, features] : fields) {
            if (box->objectName() != name || !isOn(page, box))
                continue;
            for (const QString& feature : QString(features).split(' ')) {
                if (!m_camera.has(feature))
                    continue;
                compare(box->objectName() + " of " + page, box->value(),
                        m_camera.text(feature).toDouble(), std::pow(10.0, -box->decimals()));
                break;
            }
        }
    }

    // The single region's band ends with the picture, which keeps the rounded aspect ratio of the
    // size at which it was chosen.
    void compareBand(const QLabel* label)
    {
        if (m_state.regions.empty() || m_state.maximum.isEmpty())
            return;
        const auto& region = m_state.regions.front();
        const QRect band = label->findChild<QRubberBand*>()->geometry();
        const auto sensorWidth = double(m_state.maximum.width);
        const double ratio = sensorWidth / double(m_state.maximum.height);
        const double width
            = std::min(double(label->width()), std::floor(label->height() * ratio + 0.5));
        const double scale = width / sensorWidth;
        const QSize room = label->pixmap(Qt::ReturnByValue).size();
        compare("the band's left", band.x(), double(region.x) * scale, 1.0);
        compare("the band's top", band.y(), double(region.y) * scale, 1.0);
        compare("the band's width", band.width(),
                std::min(double(region.width) * scale, double(room.width() - band.x())), 2.0);
        compare("the band's height", band.height(),
                std::min(double(region.height) * scale, double(room.height() - band.y())), 2.0);
    }

    // Each region that is switched on has its band, and no other has one. Where the older switch is
    // on, those that are not valid may lack theirs.
    void compareBands(const QLabel* label)
    {
        int shown = 0;
        for (const QRubberBand* const band : label->findChildren<QRubberBand*>())
            shown += band->inherits("RectangleRubberBand") && band->isVisible() ? 1 : 0;
        const auto& regions = m_state.regions;
        const bool needValid = m_camera.has("MultipleRegionsEnable");
        const auto least = std::count_if(regions.begin(), regions.end(), [=](const auto& region) {
            return region.isValid || !needValid;
        });
        if (shown < least || shown > int(regions.size()))
            compare("the number of bands", QString::number(shown), QString::number(least));
    }

    void compareTable(const QAbstractItemView* table)
    {
        const QWidget* tabs = table;
        while (tabs && !qobject_cast<const QTabWidget*>(tabs))
            tabs = tabs->parentWidget();
        const int region = tabs ? qobject_cast<const QTabWidget*>(tabs)->currentIndex() : 0;
        const QAbstractItemModel* const model = table->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            const QString name = model->index(row, 0).data().toString();
            if (m_camera.has(name))
                compare(QString("%1 of region %2").arg(name).arg(region),
                        model->index(row, 1).data().toString(),
                        m_camera.textOfRegion(name, region));
        }
    }

    Session& m_session;
    const SoakCamera& m_camera;
    const sim::Snapshot m_state;
};

} // namespace

int Invariants::countOverlaps(Session& session)
{
    int overlaps = 0;
    const auto regions = session.camera().state().regions;
    for (const auto& a : regions) {
        for (const auto& b : regions)
            overlaps += a.number < b.number && rectOf(a).intersects(rectOf(b)) ? 1 : 0;
    }
    return overlaps;
}

void Invariants::checkRegions(Session& session)
{
    const sim::Snapshot state = session.camera().state();
    const QRect sensor(0, 0, int(state.maximum.width), int(state.maximum.height));
    for (const sim::Snapshot::Region& region : state.regions) {
        // A region that a new binning left outside is invalid, and the camera says so.
        if (region.isValid && !state.maximum.isEmpty() && !sensor.contains(rectOf(region)))
            session.find(QString("region %1 is beyond the sensor").arg(region.number));
    }
}

void Invariants::checkAtRest(Session& session)
{
    constexpr int settlingTime = 2500;
    session.camera().behave();
    leaveField();
    if (!session.camera().notifies()) {
        session.host().hide();
        session.host().show();
    }
    session.resize(800, 1000);
    session.pass(settlingTime);
    if (!session.page())
        return;
    session.takeWrites();
    if (session.camera().notifies())
        session.camera().writeFromOutside();
    session.pass(settlingTime);
    // Reading selects regions; a region outside the picture switches the automatic function off.
    const QString writes = session.takeWrites({"SubRegionSelector", "AutofunctionAOIEnable"});
    if (!writes.isEmpty())
        session.find("a refresh wrote " + writes);
    QStringList findings = Comparison(session).findings;
    // Threads may have to wait, and a camera that seemed lost is asked again after seconds.
    for (int looks = 0; looks < 10 && session.character().hasThreads && !findings.isEmpty();
         ++looks) {
        session.camera().flushNotifications();
        session.pass(4 * settlingTime);
        findings = Comparison(session).findings;
    }
    for (const QString& finding : qAsConst(findings))
        session.find(finding);
}

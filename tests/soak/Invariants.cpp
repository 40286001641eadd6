#include "Invariants.h"

#include "UserInput.h"

#include <QtWidgets>

#include <cmath>

namespace {

/// Fields of region pages and the features they show, of which the camera's first counts.
constexpr const char* fields[][3]{
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

/// The nearest of @p type around; null when there is none.
template <typename Widget = QWidget>
const Widget* around(const QWidget* widget, const char* type = Widget::staticMetaObject.className())
{
    while (widget && !widget->inherits(type))
        widget = widget->parentWidget();
    return static_cast<const Widget*>(widget);
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
        : m_camera(session.camera())
        , m_state(m_camera.state())
    {
        for (const QWidget* const widget : usable<QWidget>(session)) {
            compareField(widget);
            if (widget->inherits("QTableView") && around(widget, "RegionTableWidget"))
                compareTable(static_cast<const QTableView*>(widget));
            else if (widget->inherits("MultiRubberBandLabel") && m_state.hasMultipleRegions)
                compareBands(widget);
            else if (widget->inherits("RubberBandLabel") && around(widget, "AOIWidget"))
                compareBand(static_cast<const QLabel*>(widget));
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

    void compareField(const QWidget* widget)
    {
        QString feature = widget->objectName().mid(3); // three letters stand before it
        for (const auto& [page, name, features] : fields) {
            if (widget->objectName() != name || !around(widget, page))
                continue;
            const QStringList names = QString(features).split(' ');
            feature = *std::find_if(names.begin(), names.end() - 1,
                                    [this](const QString& one) { return m_camera.has(one); });
        }
        const QString held = m_camera.text(feature);
        const QVariant shown = widget->metaObject()->userProperty().read(widget);
        if (held.isEmpty())
            return;
        if (widget->inherits("QAbstractSpinBox"))
            compare(feature, shown.toDouble(), held.toDouble(),
                    0.51 * std::pow(10.0, -widget->property("decimals").toInt()));
        else if (widget->inherits("QComboBox") || widget->inherits("QCheckBox"))
            compare(feature, shown.toString(), held);
    }

    // The single region's band ends with the picture, which keeps the rounded aspect ratio of the
    // size at which it was chosen.
    void compareBand(const QLabel* label)
    {
        if (m_state.regions.empty() || m_state.maximum.isEmpty())
            return;
        const double sensorWidth = double(m_state.maximum.width);
        const double ratio = sensorWidth / double(m_state.maximum.height);
        const double width
            = std::min(double(label->width()), std::floor(label->height() * ratio + 0.5));
        const double scale = width / sensorWidth;
        const QSizeF room = label->pixmap(Qt::ReturnByValue).size();
        const QRect band = label->findChild<QRubberBand*>()->geometry();
        const QRect region = rectOf(m_state.regions.front());
        const double right = std::min(scale * (region.x() + region.width()), room.width());
        const double bottom = std::min(scale * (region.y() + region.height()), room.height());
        compare("the band's left", band.x(), scale * region.x(), 1.0);
        compare("the band's top", band.y(), scale * region.y(), 1.0);
        compare("the band's right", band.x() + band.width(), right, 2.5);
        compare("the band's bottom", band.y() + band.height(), bottom, 2.5);
    }

    // Each region that is switched on has its band, and no other has one. Where the older switch is
    // on, those that are not valid may lack theirs.
    void compareBands(const QWidget* label)
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

    void compareTable(const QTableView* table)
    {
        const auto* const tabs = around<QTabWidget>(table);
        const int region = tabs ? tabs->currentIndex() : 0;
        const QAbstractItemModel& model = *table->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            const QString name = model.index(row, 0).data().toString();
            // Open: with threads the row of the switch was seen to stay behind the camera.
            if (m_camera.character().hasThreads && name.startsWith("MultipleRegion"))
                continue;
            if (m_camera.has(name))
                compare(QString("%1 of region %2").arg(name).arg(region),
                        model.index(row, 1).data().toString(), m_camera.text(name, region));
        }
    }

    const SoakCamera& m_camera;
    const sim::Snapshot m_state;
};

} // namespace

int Invariants::countOverlaps(Session& session)
{
    // A tile may lie over another while its neighbour is off, and a refused write may leave an
    // overlap.
    const SoakCamera& camera = session.camera();
    if (!camera.character().isStrict || camera.text("MultipleRegionArrangement") == "Tile")
        return 0;
    int overlaps = 0;
    const auto regions = camera.state().regions;
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
    SoakCamera& camera = session.camera();
    camera.behave();
    leaveField();
    const bool notifies = camera.flushNotifications();
    if (!notifies) {
        session.host().hide();
        session.host().show();
    }
    session.resize({800, 1000});
    session.pass(settlingTime);
    if (!session.page())
        return;
    session.takeWrites();
    if (notifies)
        camera.writeFromOutside();
    session.pass(settlingTime);
    session.checkWrites("a refresh", readersWrites);
    QStringList findings = Comparison(session).findings;
    // Threads may have to wait, and a camera that seemed lost is asked again after seconds.
    for (int looks = camera.character().hasThreads ? 10 : 0; looks > 0 && !findings.isEmpty();
         --looks) {
        camera.flushNotifications();
        session.pass(4 * settlingTime);
        findings = Comparison(session).findings;
    }
    for (const QString& finding : qAsConst(findings))
        session.find(finding);
}

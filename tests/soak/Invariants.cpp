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

/// Whether the page shows what the camera holds.
class Comparison
{
public:
    explicit Comparison(Session& session)
        : m_session(session)
        , m_camera(session.camera())
        , m_state(m_camera.snapshot())
    {
        compareRegionFields();
        compareBoundFields();
        compareBand();
        compareBands();
        compareTables();
    }

    QStringList findings;

private:
    void add(const QString& what, const QString& shown, const QString& held)
    {
        findings.append(QString("%1 shows %2, the camera holds %3").arg(what, shown, held));
    }
    void compare(const QString& what, const QString& shown, const std::string& held)
    {
        if (shown.toStdString() != held)
            add(what, shown, QString::fromStdString(held));
    }
    void compare(const QString& what, double shown, double held, double tolerance)
    {
        if (!(std::abs(shown - held) <= tolerance))
            add(what, QString::number(shown), QString::number(held));
    }

    void compareRegionFields()
    {
        for (const QDoubleSpinBox* const box : usable<QDoubleSpinBox>(m_session)) {
            for (const auto& [page, name, features] : fields) {
                QStringList held = QString(features).split(' ');
                while (!held.isEmpty() && !m_camera.has(held.first().toStdString()))
                    held.removeFirst();
                if (box->objectName() == name && isOn(page, box) && !held.isEmpty())
                    compare(box->objectName() + " of " + page, box->value(),
                            m_camera.feature(held.first().toStdString()).number(),
                            std::pow(10.0, -box->decimals()));
            }
        }
    }

    // Fields that are named after a feature, with three letters before.
    void compareBoundFields()
    {
        for (const QWidget* const widget : usable<QWidget>(m_session)) {
            const QString name = widget->objectName();
            const std::string feature = name.mid(3).toStdString();
            if (!m_camera.has(feature))
                continue;
            const std::string held = m_camera.feature(feature).text();
            if (const auto* const box = qobject_cast<const QSpinBox*>(widget))
                compare(name, QString::number(box->value()), held);
            else if (const auto* const list = qobject_cast<const QComboBox*>(widget))
                compare(name, list->currentText(), held);
            else if (const auto* const check = qobject_cast<const QCheckBox*>(widget))
                compare(name, check->isChecked(), m_camera.feature(feature).isOn(), 0.0);
        }
    }

    // The single region's band ends with the picture, which keeps the rounded aspect ratio of the
    // size at which it was chosen.
    void compareBand()
    {
        for (const QLabel* const label : usable<QLabel>(m_session)) {
            const auto* const band = label->findChild<QRubberBand*>();
            if (!isOn("AOIWidget", label) || !band || m_state.regions.empty()
                || m_state.maximum.isEmpty())
                continue;
            const auto& region = m_state.regions.front();
            const auto sensorWidth = double(m_state.maximum.width);
            const double ratio = sensorWidth / double(m_state.maximum.height);
            const double width
                = std::min(double(label->width()), std::floor(label->height() * ratio + 0.5));
            const double scale = width / sensorWidth;
            const QSize picture = label->pixmap(Qt::ReturnByValue).size();
            const auto compareLength = [&](const char* what, int shown, double length, int room) {
                compare(what, shown, std::min(length * scale, double(room)), 2.0);
            };
            compare("the band's left", band->x(), double(region.x) * scale, 1.0);
            compare("the band's top", band->y(), double(region.y) * scale, 1.0);
            compareLength("the band's width", band->width(), double(region.width),
                          picture.width() - band->x());
            compareLength("the band's height", band->height(), double(region.height),
                          picture.height() - band->y());
        }
    }

    // Each region that is switched on has its band, and no other has one.
    void compareBands()
    {
        for (const QLabel* const label : usable<QLabel>(m_session)) {
            if (!label->inherits("MultiRubberBandLabel") || !m_state.hasMultipleRegions)
                continue;
            int shown = 0;
            for (const QRubberBand* const band : label->findChildren<QRubberBand*>())
                shown += band->inherits("RectangleRubberBand") && band->isVisible() ? 1 : 0;
            compare("the number of bands", shown, double(m_state.regions.size()), 0.0);
        }
    }

    void compareTables()
    {
        for (const QAbstractItemView* const table : usable<QAbstractItemView>(m_session)) {
            const QTabWidget* tabs = nullptr;
            for (const QWidget* parent = table; parent && !tabs; parent = parent->parentWidget())
                tabs = qobject_cast<const QTabWidget*>(parent);
            if (!table->inherits("RegionTableWidget") || !tabs)
                continue;
            const int region = tabs->currentIndex();
            const QAbstractItemModel* const model = table->model();
            for (int row = 0; row < model->rowCount(); ++row) {
                const QString name = model->index(row, 0).data().toString();
                if (m_camera.has(name.toStdString()))
                    compare(QString("%1 of region %2").arg(name).arg(region),
                            model->index(row, 1).data().toString(),
                            m_camera.feature(name.toStdString()).valueAt(region).toText());
            }
        }
    }

    Session& m_session;
    const sim::Camera& m_camera;
    const sim::Snapshot m_state;
};

} // namespace

int Invariants::countOverlaps(Session& session)
{
    const sim::Snapshot state = session.camera().snapshot();
    int overlaps = 0;
    for (const auto& a : state.regions) {
        for (const auto& b : state.regions) {
            if (a.number < b.number && a.x < b.x + b.width && b.x < a.x + a.width
                && a.y < b.y + b.height && b.y < a.y + a.height)
                ++overlaps;
        }
    }
    return overlaps;
}

void Invariants::checkRegions(Session& session)
{
    const sim::Snapshot state = session.camera().snapshot();
    if (state.maximum.isEmpty())
        return;
    for (const sim::Snapshot::Region& region : state.regions) {
        // A region that a new binning left outside is invalid, and the camera says so.
        if (region.isValid
            && (region.x < 0 || region.y < 0 || region.x + region.width > state.maximum.width
                || region.y + region.height > state.maximum.height))
            session.find(QString("region %1 is beyond the sensor").arg(region.number));
    }
}

void Invariants::checkAtRest(Session& session)
{
    using Mode = sim::NotificationSettings::Mode;
    constexpr int settlingTime = 2500;
    session.camera().failures().clear();
    leaveField();
    if (session.camera().notifications().mode == Mode::Off) {
        session.host().hide();
        session.host().show();
    }
    session.resize(800, 1000);
    session.pass(settlingTime);
    if (!session.page())
        return;
    session.takeWrites();
    if (session.camera().notifications().mode != Mode::Off)
        session.misbehaviour().writeFromOutside();
    session.pass(settlingTime);
    // Reading selects regions; a region outside the picture switches the automatic function off.
    const QString writes = session.takeWrites({"SubRegionSelector", "AutofunctionAOIEnable"});
    if (!writes.isEmpty())
        session.find("a refresh wrote " + writes);
    QStringList findings = Comparison(session).findings;
    // Threads may have to wait, and a camera that seemed lost is asked again after seconds.
    for (int looks = 0; looks < 10 && session.hasThreads() && !findings.isEmpty(); ++looks) {
        session.camera().flushNotifications();
        session.pass(4 * settlingTime);
        findings = Comparison(session).findings;
    }
    for (const QString& finding : qAsConst(findings))
        session.find(finding);
}

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

namespace Invariants {

namespace {

/// A field of a region page and the features it shows, of which the camera's first counts.
struct Field
{
    const char* page;
    const char* name;
    std::initializer_list<const char*> features;
};

const std::initializer_list<Field> fields{
    {"AOIWidget", "spinLeft", {"OffsetX"}},
    {"AOIWidget", "spinTop", {"OffsetY"}},
    {"AOIWidget", "spinWidth", {"Width"}},
    {"AOIWidget", "spinHeight", {"Height"}},
    {"AutoROIWidget",
     "spinLeft",
     {"DSPSubregionLeft", "AutofunctionAOIOffsetX", "AutoModeRegionOffsetX"}},
    {"AutoROIWidget",
     "spinTop",
     {"DSPSubregionTop", "AutofunctionAOIOffsetY", "AutoModeRegionOffsetY"}},
    {"AutoROIWidget", "spinRight", {"DSPSubregionRight"}},
    {"AutoROIWidget", "spinBottom", {"DSPSubregionBottom"}},
    {"AutoROIWidget", "spinWidth", {"AutofunctionAOIWidth", "AutoModeRegionWidth"}},
    {"AutoROIWidget", "spinHeight", {"AutofunctionAOIHeight", "AutoModeRegionHeight"}},
    {"AutoROIWidget", "spinExpAutoMin", {"ExposureAutoMin"}},
    {"AutoROIWidget", "spinExpAutoMax", {"ExposureAutoMax"}},
};

QString valueText(const sim::Camera& camera, const std::string& feature)
{
    return QString::fromStdString(camera.feature(feature).text());
}

void compare(QStringList& findings, const QString& what, double shown, double held,
             double tolerance)
{
    if (!(std::abs(shown - held) <= tolerance))
        findings.append(
            QStringLiteral("%1 shows %2, the camera holds %3").arg(what).arg(shown).arg(held));
}

bool isOn(const char* page, const QWidget* widget)
{
    while (widget && !widget->inherits(page))
        widget = widget->parentWidget();
    return widget;
}

void checkRegionFields(Session& session, QStringList& findings)
{
    for (const Field& field : fields) {
        for (QDoubleSpinBox* const box : usable<QDoubleSpinBox>(session)) {
            if (box->objectName() != QLatin1String(field.name))
                continue;
            const auto feature
                = std::find_if(field.features.begin(), field.features.end(),
                               [&](const char* name) { return session.camera().has(name); });
            if (isOn(field.page, box) && feature != field.features.end())
                compare(findings, QStringLiteral("%1 of %2").arg(box->objectName(), field.page),
                        box->value(), session.camera().feature(*feature).number(),
                        std::pow(10.0, -box->decimals()));
        }
    }
}

// Fields that are named after a feature, with three letters before.
void checkBoundFields(Session& session, QStringList& findings)
{
    for (QWidget* const widget : usable<QWidget>(session)) {
        const std::string feature = widget->objectName().mid(3).toStdString();
        if (!session.camera().has(feature))
            continue;
        const QString held = valueText(session.camera(), feature);
        QString shown = held;
        if (const auto* const box = qobject_cast<QSpinBox*>(widget))
            shown = QString::number(box->value());
        else if (const auto* const list = qobject_cast<QComboBox*>(widget))
            shown = list->currentText();
        else if (const auto* const check = qobject_cast<QCheckBox*>(widget))
            compare(findings, check->objectName(), check->isChecked(),
                    session.camera().feature(feature).isOn(), 0.0);
        if (shown != held)
            findings.append(QStringLiteral("%1 shows %2, the camera holds %3")
                                .arg(widget->objectName(), shown, held));
    }
}

// The page of the single region: its band covers the camera's region, to the pixel, but ends with
// the picture, which keeps the rounded aspect ratio of the size at which it was chosen.
void checkBand(Session& session, QStringList& findings)
{
    const sim::Snapshot state = session.camera().snapshot();
    for (const QLabel* const label : usable<QLabel>(session)) {
        const auto* const band = label->findChild<QRubberBand*>();
        if (!isOn("AOIWidget", label) || !band || state.regions.empty() || state.maximum.isEmpty())
            continue;
        const auto& region = state.regions.front();
        const double width
            = std::min(double(label->width()),
                       std::floor(double(label->height()) * double(state.maximum.width)
                                      / double(state.maximum.height)
                                  + 0.5));
        const double scale = width / double(state.maximum.width);
        compare(findings, QStringLiteral("the band's left"), band->x(), double(region.x) * scale,
                1.0);
        compare(findings, QStringLiteral("the band's top"), band->y(), double(region.y) * scale,
                1.0);
        const QSize picture = label->pixmap(Qt::ReturnByValue).size();
        compare(findings, QStringLiteral("the band's width"), band->width(),
                std::min(double(region.width) * scale, double(picture.width() - band->x())), 2.0);
        compare(findings, QStringLiteral("the band's height"), band->height(),
                std::min(double(region.height) * scale, double(picture.height() - band->y())), 2.0);
    }
}

// Each region that is switched on has its band, and no other has one.
void checkRegionBands(Session& session, QStringList& findings)
{
    const sim::Snapshot state = session.camera().snapshot();
    for (const QLabel* const label : usable<QLabel>(session)) {
        if (!label->inherits("MultiRubberBandLabel") || !state.hasMultipleRegions)
            continue;
        int shown = 0;
        for (const QRubberBand* const band : label->findChildren<QRubberBand*>())
            shown += band->inherits("RectangleRubberBand") && band->isVisible() ? 1 : 0;
        compare(findings, QStringLiteral("the number of bands"), shown,
                double(state.regions.size()), 0.0);
    }
}

// The table of the region whose tab is open: a name and a value in each row.
void checkRegionTables(Session& session, QStringList& findings)
{
    for (const QAbstractItemView* const table : usable<QAbstractItemView>(session)) {
        if (!table->inherits("RegionTableWidget"))
            continue;
        const QWidget* page = table;
        while (page && !qobject_cast<const QTabWidget*>(page->parentWidget()->parentWidget()))
            page = page->parentWidget();
        if (!page)
            continue;
        const auto* const tabs = static_cast<QTabWidget*>(page->parentWidget()->parentWidget());
        const QAbstractItemModel* const model = table->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            const std::string name = model->index(row, 0).data().toString().toStdString();
            if (!session.camera().has(name))
                continue;
            const auto held = session.camera().feature(name).valueAt(tabs->currentIndex());
            const QString shown = model->index(row, 1).data().toString();
            if (shown != QString::fromStdString(held.toText()))
                findings.append(QStringLiteral("the table shows %1 for %2 of region %3, the camera "
                                               "holds %4")
                                    .arg(shown, QString::fromStdString(name))
                                    .arg(tabs->currentIndex())
                                    .arg(QString::fromStdString(held.toText())));
        }
    }
}

QStringList differences(Session& session)
{
    QStringList findings;
    checkBoundFields(session, findings);
    checkRegionFields(session, findings);
    checkBand(session, findings);
    checkRegionBands(session, findings);
    checkRegionTables(session, findings);
    return findings;
}

} // namespace

int countOverlaps(Session& session)
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

void checkRegions(Session& session)
{
    const sim::Snapshot state = session.camera().snapshot();
    if (state.maximum.isEmpty())
        return;
    for (const sim::Snapshot::Region& region : state.regions) {
        // A region that a new binning left outside is invalid, and the camera says so.
        if (!region.isValid)
            continue;
        if (region.x < 0 || region.y < 0 || region.x + region.width > state.maximum.width
            || region.y + region.height > state.maximum.height)
            session.find(QStringLiteral("region %1 is beyond the sensor").arg(region.number));
    }
}

void checkAtRest(Session& session)
{
    using Mode = sim::NotificationSettings::Mode;
    constexpr int settlingTime = 2500;
    session.camera().failures().clear();
    if (QWidget* const field = QApplication::focusWidget())
        field->clearFocus();
    if (session.camera().notifications().mode == Mode::Off) {
        session.host().hide();
        session.host().show();
    }
    session.resize(800, 1000);
    session.pass(settlingTime);
    if (!session.page())
        return;
    // To read one of several regions it has to be selected, and a region of the automatic function
    // outside the picture switches the function off.
    const QStringList demanded{QStringLiteral("SubRegionSelector"),
                               QStringLiteral("AutofunctionAOIEnable")};
    session.takeWrites();
    if (session.camera().notifications().mode != Mode::Off)
        session.misbehaviour().writeFromOutside();
    session.pass(settlingTime);
    const QStringList writes = session.takeWrites(demanded);
    if (!writes.isEmpty())
        session.find(QStringLiteral("a refresh wrote %1").arg(writes.join(QLatin1String(", "))));
    QStringList findings = differences(session);
    // A busy machine may let the camera's threads wait, and a camera that seemed lost is asked
    // again after seconds.
    for (int looks = 0; looks < 10 && session.hasThreads() && !findings.isEmpty(); ++looks) {
        session.camera().flushNotifications();
        session.pass(4 * settlingTime);
        findings = differences(session);
    }
    for (const QString& finding : qAsConst(findings))
        session.find(finding);
}

} // namespace Invariants

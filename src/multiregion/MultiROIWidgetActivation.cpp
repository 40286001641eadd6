// Switching regions on and off under the rules of the arrangement, and the default layouts.

#include "multiregion/MultiROIWidget.h"

#include "multiregion/label/MultiRubberBandLabel.h"
#include "multiregion/rules/ArrangementQuestions.h"
#include "multiregion/rules/DefaultLayouts.h"
#include "multiregion/rules/RegionButtonRules.h"
#include "multiregion/rules/RegionPlacement.h"
#include "ui_MultiROIWidget.h"
#include "widgets/OverrideCursor.h"
#include "widgets/RoundButton.h"

#include <QSignalBlocker>

#include <mutex>
#include <utility>

namespace {

constexpr int tileCorner = 3; ///< the region that shares a row with one and a column with another

RegionExtent extentOf(const QRect& rect, Qt::Orientation axis)
{
    return axis == Qt::Horizontal
        ? RegionExtent{static_cast<double>(rect.x()), static_cast<double>(rect.width())}
        : RegionExtent{static_cast<double>(rect.y()), static_cast<double>(rect.height())};
}

} // namespace

/// Asks a question while the page keeps still. False when by the time of the answer, whatever that
/// was, the page is gone or hidden, or the camera streams or is arranged otherwise.
template <typename Ask> bool MultiROIWidget::ask(Ask&& question)
{
    const QPointer<MultiROIWidget> page(this);
    const QString modeBefore = mode();
    const bool wasStreaming = m_streaming;
    const bool wasVisible = isVisible();
    ++m_suspensions;
    question(modeBefore);
    if (!page)
        return false;
    --m_suspensions;
    refreshPendingSoon();
    if (wasVisible && !isVisible())
        return false;
    // Another client may have arranged the regions anew, which the page has not followed yet.
    refreshArrangement();
    return m_streaming == wasStreaming && mode() == modeBefore;
}

void MultiROIWidget::onRegionButtonToggled()
{
    const QPointer<RoundButton> button = qobject_cast<RoundButton*>(sender());
    if (!button || !isRegion(button->id()))
        return;
    const int region = button->id();
    const bool activate = button->isChecked();
    const QPointer<MultiROIWidget> page(this);
    const QPointer<RoundButton> outer = std::exchange(m_toggledButton, button);
    m_ui->tabRegions->setCurrentIndex(region);
    emit currentRegionChanged(region);
    if (page)
        toggleRegion(region, activate);
    if (page) {
        m_toggledButton = outer;
        updateButtons();
    } else if (button) {
        button->deleteLater();
    }
}

void MultiROIWidget::toggleRegion(int region, bool activate)
{

    switch (arrangementMode(mode())) {
    case ArrangementMode::Horizontal:
    case ArrangementMode::Vertical:
        if (activate)
            activateRegion(region);
        else
            deactivateSubsequent(region);
        break;
    case ArrangementMode::Tile:
        if (activate || region == 0)
            activateRegion(region);
        else
            deactivateTile(region);
        break;
    case ArrangementMode::Free:
        setRegionActive(region, activate);
        break;
    }
}

/// As the camera had it when last read; the button may stay checked without a place for the region.
bool MultiROIWidget::isActive(int region) const
{
    return isRegion(region) && m_label->isRegionShown(region);
}

bool MultiROIWidget::isButtonChecked(int region) const
{
    const RoundButton* button = m_tabs[static_cast<std::size_t>(region)].button;
    return button && button->isChecked();
}

void MultiROIWidget::setRegionActive(int region, bool active)
{
    if (!isRegion(region))
        return;
    if (!select(region)) {
        setButton(region, isActive(region));
        return;
    }
    const bool before = m_regions.isOn();
    const bool now = m_regions.switchOn(active);
    updateRegion(region);
    setButton(region, now);
    if (now != before)
        emit regionActivated(region, now);
}

void MultiROIWidget::setButton(int region, bool checked)
{
    if (RoundButton* button = m_tabs[static_cast<std::size_t>(region)].button) {
        const QSignalBlocker blocker(button);
        button->setChecked(checked);
    }
    updateButtons();
}

void MultiROIWidget::updateButtons()
{
    QVector<bool> active;
    QVector<bool> checked;
    for (int region = 0; region < regionCount(); ++region) {
        active << isActive(region);
        checked << isButtonChecked(region);
    }
    const auto states = regionButtonStates(arrangementMode(mode()), active, checked, m_streaming);
    for (int region = 0; region < regionCount(); ++region) {
        if (RoundButton* button = m_tabs[static_cast<std::size_t>(region)].button) {
            button->setEnabled(states[region].enabled);
            button->setToolTip(states[region].toolTip);
        }
    }
}

/// Where a region may be activated, null for nowhere; leaves it selected. Region 0 has no
/// predecessor and is never placed. Nothing when the camera refuses to select the regions.
std::optional<QRect> MultiROIWidget::placement(int region, Qt::Orientation axis)
{
    if (region < 1 || !isRegion(region))
        return QRect();
    const bool horizontal = axis == Qt::Horizontal;
    const Qt::Orientation across = horizontal ? Qt::Vertical : Qt::Horizontal;
    const QSize sensor = m_regions.sensorSize();
    PlacementRequest request;
    request.sensorSize = horizontal ? sensor.width() : sensor.height();
    if (!select(0))
        return std::nullopt;
    request.first = extentOf(m_regions.geometry(), across);
    if (!select(region - 1))
        return std::nullopt;
    request.predecessor = extentOf(m_regions.geometry(), axis);
    if (!select(region))
        return std::nullopt;
    request.current = extentOf(m_regions.geometry(), axis);
    request.size = horizontal ? m_regions.widthRange() : m_regions.heightRange();

    const QRect placed = horizontal ? placedInRow(request) : placedInColumn(request);
    if (placed.isNull())
        log(tr("Region%1 cannot be activated into a valid configuration due to the minimum size.")
                .arg(region));
    return placed;
}

/// The button stays as it is where the region finds no place.
void MultiROIWidget::activateRegion(int region)
{
    const ArrangementMode arrangement = arrangementMode(mode());
    const bool isTile = arrangement == ArrangementMode::Tile;
    const bool below = arrangement == ArrangementMode::Vertical || (isTile && region == 2);
    const std::optional<QRect> placed = placement(region, below ? Qt::Vertical : Qt::Horizontal);
    if (!placed)
        setButton(region, isActive(region));
    if (!placed || placed->isNull())
        return;
    if (place(region, {}, *placed) && isTile && (region == 1 || region == 2))
        completeTile(region, *placed);
}

/// Writes both rectangles in turn; false when the page went meanwhile.
bool MultiROIWidget::place(int region, const QRect& first, const QRect& placed)
{
    const QPointer<MultiROIWidget> page(this);
    saveNewRegionGeometry(region, first);
    if (page)
        saveNewRegionGeometry(region, placed);
    return page;
}

/// With both partners of the corner active the tile is to be completed: the user is told, and the
/// new region is placed again if the corner would have a place.
void MultiROIWidget::completeTile(int region, const QRect& placed)
{
    const bool isColumn = region == 1;
    const int partner = isColumn ? 2 : 1;
    if (!isActive(partner))
        return;
    bool told = false;
    const bool unchanged = ask([&](const QString& mode) {
        told = tellWholePartOn(this, mode, isColumn ? TilePart::Column : TilePart::Row);
    });
    if (!unchanged || !told)
        return;
    // Either may have been switched off by another client meanwhile.
    const bool areOn = isOnByCamera(partner) && isOnByCamera(region);
    const std::optional<QRect> test = !areOn ? std::nullopt
        : isColumn                           ? placement(tileCorner, Qt::Horizontal)
                                             : placement(2, Qt::Vertical);
    if (test && !test->isNull())
        place(region, QRect(placed.topLeft(), QSize(1, 1)), placed);
    else
        select(region);
}

bool MultiROIWidget::isOnByCamera(int region)
{
    return select(region) && m_regions.isOn();
}

void MultiROIWidget::deactivateTile(int region)
{
    if (region == tileCorner)
        deactivateCorner();
    else if ((region == 1 || region == 2) && isActive(tileCorner))
        deactivatePart(region, region == 1 ? TilePart::Column : TilePart::Row);
    else
        setRegionActive(region, false);
}

void MultiROIWidget::deactivatePart(int region, TilePart part)
{
    const QPointer<MultiROIWidget> page(this);
    bool confirmed = false;
    const bool unchanged
        = ask([&](const QString& mode) { confirmed = confirmWholePartOff(this, mode, part); });
    if (!page)
        return;
    if (unchanged && confirmed) {
        deactivate({tileCorner, region});
    } else {
        setButton(region, true);
    }
}

void MultiROIWidget::deactivateCorner()
{
    const QPointer<MultiROIWidget> page(this);
    TileAnswer answer = TileAnswer::None;
    const bool unchanged = ask([&](const QString&) { answer = askForTilePart(this); });
    if (!page)
        return;
    if (!unchanged || answer == TileAnswer::Cancel) {
        setButton(tileCorner, true);
    } else if (answer != TileAnswer::None) {
        deactivate({answer == TileAnswer::Row ? 2 : 1, tileCorner});
    }
}

void MultiROIWidget::deactivate(const QVector<int>& regions)
{
    const QPointer<MultiROIWidget> page(this);
    for (const int region : regions) {
        if (page)
            setRegionActive(region, false);
    }
}

void MultiROIWidget::deactivateSubsequent(int region)
{
    bool isLast = true;
    QVector<int> regions;
    for (int later = regionCount() - 1; later >= region; --later) {
        regions << later;
        isLast = isLast && (later == region || !isActive(later));
    }
    if (isLast) {
        setRegionActive(region, false);
        return;
    }
    const QPointer<MultiROIWidget> page(this);
    bool confirmed = false;
    const bool unchanged
        = ask([&](const QString& mode) { confirmed = confirmSubsequentOff(this, mode); });
    if (!page)
        return;
    if (unchanged && confirmed)
        deactivate(regions);
    else
        setButton(region, true);
}

void MultiROIWidget::loadDefaultConfiguration()
{
    if (!m_ui)
        return;
    // From the question on, or a second one could be answered first. The page may go meanwhile.
    const std::shared_ptr<QMutex> loadLock = m_loadLock;
    const std::unique_lock<QMutex> lock(*loadLock, std::try_to_lock);
    if (!lock)
        return;
    const QPointer<MultiROIWidget> page(this);
    bool confirmed = false;
    const bool unchanged = ask([&](const QString&) { confirmed = confirmDefaults(this); });
    if (!page || !unchanged || !confirmed)
        return;
    const OverrideCursor cursor(Qt::WaitCursor);
    {
        const Work work(this);
        applyDefaults();
    }
    if (page)
        refreshAllRegions();
    if (page)
        m_ui->tabRegions->setCurrentIndex(0);
    if (page)
        emit currentRegionChanged(0);
}

void MultiROIWidget::applyDefaults()
{
    const QPointer<MultiROIWidget> page(this);
    const QSize sensor = m_regions.sensorSize();
    for (int region = regionCount() - 1; region >= 0; --region) {
        saveNewRegionGeometry(region, {});
        if (page)
            setRegionActive(region, false);
        if (!page)
            return;
    }
    m_ui->tabRegions->setCurrentIndex(0);
    if (!select(0))
        return;
    const DefaultLayout layout
        = defaultLayout(mode(),
                        {static_cast<double>(sensor.width()), static_cast<double>(sensor.height()),
                         m_regions.widthRange(), m_regions.heightRange(), regionCount()});
    log(layout.message);
    for (auto it = layout.regions.cbegin(); page && it != layout.regions.cend(); ++it) {
        saveNewRegionGeometry(it.key(), it.value());
        if (page)
            emit regionColorChanged(it.key(), regionDefaultColor());
    }
}

#include "multiregion/label/MultiRubberBandLabel.h"

#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/RectangleRubberBand.h"

#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize preferredSize(400, 300);
constexpr double smallestFactor = 1e-5;

} // namespace

// Receivers of signals may change anything, and delete the page with this label: signals come last,
// or what follows is guarded.

MultiRubberBandLabel::MultiRubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color,
                                           const QString& mode, QWidget* parent)
    : BandSurroundings({sensorWidth, sensorHeight}, color, parent)
    , m_regions(color)
    , m_drag(&m_regions)
    , m_lines(this, &m_regions)
{
    // The first resize tells its factors from the sensor's size, however large a pixmap it found.
    m_regions.setMapping({sensorSize(), sensorSize()});
    m_regions.setMode(::arrangementMode(mode));
    m_announceSoon.setSingleShot(true);
    connect(&m_announceSoon, &QTimer::timeout, this, &MultiRubberBandLabel::announceRegions);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MultiRubberBandLabel::setSensorSize(const QSize& size)
{
    if (size == sensorSize())
        return;
    dropDrag();
    setSensor(size);
    rescale();
    arrange();
}

void MultiRubberBandLabel::setArrangementMode(const QString& mode)
{
    const ArrangementMode newMode = ::arrangementMode(mode);
    if (newMode == m_regions.mode())
        return;
    dropDrag();
    m_regions.setMode(newMode);
    arrange();
}

void MultiRubberBandLabel::setRegionLimits(int regionNo, const RegionSizeLimits& limits)
{
    KnownRegion& region = m_regions[regionNo];
    region.limits = limits;
    if (region.band)
        region.band->setSizeLimits(m_regions.limitsOfBand(regionNo));
}

void MultiRubberBandLabel::selectRegion(int regionNo)
{
    if (m_pressedRegion == regionNo)
        return;
    m_selectedRegion = regionNo;
    for (RectangleRubberBand* band : m_regions.bands())
        band->highlightIfSelected(regionNo);
    restack();
    emit highlightSelectedRegion(regionNo);
}

QColor MultiRubberBandLabel::shownColor(int regionNo) const
{
    const KnownRegion& region = m_regions.at(regionNo);
    return region.band ? region.band->shownColor() : region.color;
}

void MultiRubberBandLabel::announceRegions()
{
    m_announceSoon.stop();
    if (signalsBlocked())
        return;
    if (m_arrangePending)
        arrangeSilently();
    const QPointer<MultiRubberBandLabel> guard(this);
    for (const int region : m_regions.numbers()) {
        if (guard)
            announce(region);
    }
}

QSize MultiRubberBandLabel::sizeHint() const
{
    return sensorSize().isEmpty() ? preferredSize
                                  : sensorSize().scaled(preferredSize, Qt::KeepAspectRatio);
}

void MultiRubberBandLabel::removeRectangle(int index)
{
    if (!isRegionShown(index))
        return;
    if (m_drag.holds(index))
        dropDrag();
    RectangleRubberBand* const band = std::exchange(m_regions[index].band, nullptr);
    // It may be on the stack, in the midst of its own report.
    band->hide();
    band->disconnect();
    disconnect(band);
    band->deleteLater();
    const QPointer<MultiRubberBandLabel> guard(this);
    emit regionActivated(index, false);
    if (guard)
        arrange();
}

void MultiRubberBandLabel::updateRegionRangeRect()
{
    const QPointer<MultiRubberBandLabel> guard(this);
    for (const int region : m_regions.numbers()) {
        if (guard && !signalsBlocked())
            announceRange(region);
    }
}

void MultiRubberBandLabel::setBackgroundImage(std::shared_ptr<QPixmap> image, QSize sensorSize,
                                              QRect cropRect)
{
    if (image && image->isNull())
        image.reset();
    setPicture({std::move(image), sensorSize, cropRect}, this->sensorSize(), size());
    rescale();
    arrange();
}

void MultiRubberBandLabel::onRegionColorChanged(int regionNo, QColor newColor)
{
    KnownRegion& region = m_regions[regionNo];
    region.color = newColor;
    if (region.band)
        region.band->setOwnColor(newColor);
}

void MultiRubberBandLabel::onRegionGeometryChanged(int regionNo, QRect geometry)
{
    m_regions[regionNo].waiting = geometry;
    if (!m_drag.isRunning() && m_regions.applyWaiting())
        arrange();
}

void MultiRubberBandLabel::onRegionActivated(int regionNo, bool active)
{
    if (!active)
        removeRectangle(regionNo);
    else if (!isRegionShown(regionNo))
        showRectangle(regionNo);
}

void MultiRubberBandLabel::press(const QPoint& point)
{
    const QPointer<MultiRubberBandLabel> guard(this);
    if (m_arrangePending)
        announceRegions();
    if (LineRubberBand* line = guard ? lineAt(point) : nullptr)
        m_drag.begin(line);
    else if (RectangleRubberBand* band = guard ? bandAt(point) : nullptr)
        m_drag.begin(band, point);
    if (guard && m_drag.isRunning())
        emit rubberChangeStarted(point);
    else if (guard)
        dropDrag(); // nothing is there any more
}

void MultiRubberBandLabel::drag(const QPoint& point)
{
    hover(point);
    const QPointer<MultiRubberBandLabel> guard(this);
    m_drag.moveTo(point);
    if (!guard)
        return;
    const QVector<int> held = m_drag.held();
    for (const int region : held)
        m_lines.follow(region);
    emit mouseMoved(point);
}

void MultiRubberBandLabel::release(const QPoint& point)
{
    const QVector<RegionChange> changes = m_drag.end(point);
    const QPointer<MultiRubberBandLabel> guard(this);
    emit rubberChangeFinished(point);
    if (guard)
        report(changes);
}

void MultiRubberBandLabel::drop()
{
    m_drag.drop();
    m_regions.applyWaiting();
    arrangeSilently();
    m_announceSoon.start();
}

/// A line leaves the cursor as it is.
void MultiRubberBandLabel::hover(const QPoint& position)
{
    const QPoint point = clampedToPicture(position);
    if (lineAt(point))
        return;
    if (const RectangleRubberBand* band = bandAt(point))
        setCursor(cursorForGrab(band->grabAt(point)));
    else
        unsetCursor();
}

/// Whoever resizes the label goes on with it behind this: all but the signal that belongs here
/// waits for the event loop.
void MultiRubberBandLabel::resizeEvent(QResizeEvent* event)
{
    const QSize before = m_regions.mapping().shown;
    BandSurroundings::resizeEvent(event);
    rescale();
    arrangeSilently();
    m_announceSoon.start();
    const QSize& shown = m_regions.mapping().shown;
    const double factorX = static_cast<double>(shown.width()) / std::max(1, before.width());
    const double factorY = static_cast<double>(shown.height()) / std::max(1, before.height());
    if (!before.isEmpty() && factorX >= smallestFactor)
        emit labelGeometryChanged(factorX, factorY, shown);
}

void MultiRubberBandLabel::showRectangle(int regionNo)
{
    auto* band = new RectangleRubberBand(regionNo, m_regions.placed(regionNo),
                                         m_regions.limitsOfBand(regionNo).minimum,
                                         regionColor(regionNo), this);
    connect(band, &RectangleRubberBand::regionBandSelected, this,
            &MultiRubberBandLabel::onBandPressed);
    connect(band, &RectangleRubberBand::geometryChanged, this,
            &MultiRubberBandLabel::onBandGeometryChanged);
    connect(band, &RectangleRubberBand::colorChanged, this,
            &MultiRubberBandLabel::onBandColorChanged);
    connect(this, &MultiRubberBandLabel::regionActivated, band,
            &RectangleRubberBand::onNeighbourRegionActivated);
    m_lines.connectTo(band);
    m_regions[regionNo].band = band;
    band->highlightIfSelected(m_selectedRegion);
    band->show();
    restack();
    const QPointer<MultiRubberBandLabel> guard(this);
    emit regionActivated(regionNo, true);
    if (guard)
        arrange();
}

RectangleRubberBand* MultiRubberBandLabel::bandAt(const QPoint& point) const
{
    const std::optional<int> region = regionUnder(point);
    return region ? m_regions.at(*region).band : nullptr;
}

LineRubberBand* MultiRubberBandLabel::lineAt(const QPoint& point) const
{
    const RectangleRubberBand* band = bandAt(point);
    return m_lines.lineAt(point, band ? band->geometry() : QRect());
}

/// A drag goes on at another scale; without a picture the scale stays, to go on from.
void MultiRubberBandLabel::rescale()
{
    const SensorMapping before = m_regions.mapping();
    m_regions.setMapping({sensorSize(), shownSize().isEmpty() ? before.shown : shownSize()});
    m_drag.rescaleFrom(before);
}

/// Brings everything on the label in line with what is known of the regions, except for the bands
/// that are being dragged. With its signals blocked the label is being told of many regions: each
/// compared with all the others, for every one of them, would make the page wait.
void MultiRubberBandLabel::arrange()
{
    m_arrangePending = true;
    if (signalsBlocked())
        m_announceSoon.start();
    else
        announceRegions();
}

void MultiRubberBandLabel::arrangeSilently()
{
    m_arrangePending = false;
    m_regions.group();
    if (!m_drag.isPossible()) {
        dropDrag();
        return;
    }
    const QSignalBlocker blocker(this);
    for (RectangleRubberBand* band : m_regions.bands())
        placeBand(band);
    m_lines.update();
    for (RectangleRubberBand* band : m_regions.bands())
        band->onIntersectionFound(
            m_regions.intersecting(band->regionNo(), band->geometry()).value_or(-1));
}

void MultiRubberBandLabel::placeBand(RectangleRubberBand* band)
{
    const int region = band->regionNo();
    if (!m_drag.holds(region))
        band->setGeometry(m_regions.placed(region));
    band->setSizeLimits(m_regions.limitsOfBand(region));
}

/// As a press finds them: lines, the selected band, the others by number.
void MultiRubberBandLabel::restack()
{
    for (RectangleRubberBand* band : m_regions.bands())
        band->raise();
    if (auto* band = m_regions.at(m_selectedRegion).band)
        band->raise();
    m_lines.raise();
}

void MultiRubberBandLabel::announce(int regionNo)
{
    const QPointer<MultiRubberBandLabel> guard(this);
    if (isRegionShown(regionNo))
        emit regionColorChanged(regionNo, shownColor(regionNo));
    const auto news = guard ? m_regions.newConstraints(regionNo) : QVector<QStringList>();
    for (const QStringList& features : news) {
        if (guard)
            emit constraintsActivated(regionNo, features);
    }
    if (guard)
        announceRange(regionNo);
}

void MultiRubberBandLabel::announceRange(int regionNo)
{
    if (const auto range = m_regions.newRange(regionNo))
        emit regionRangeChanged(regionNo, *range);
}

void MultiRubberBandLabel::onBandPressed(int regionNo)
{
    const QPointer<MultiRubberBandLabel> guard(this);
    selectRegion(regionNo);
    if (!guard)
        return;
    m_pressedRegion = regionNo;
    emit regionSelected(regionNo);
    if (guard)
        m_pressedRegion.reset();
}

/// At the end of the band's drag, or when a neighbour has brought or solved a conflict. Nothing is
/// reported in the midst of a drag.
void MultiRubberBandLabel::onBandGeometryChanged(int regionNo)
{
    if (m_drag.isRunning())
        m_drag.note(regionNo);
    else
        report(changesAfterBandDrag(m_regions.shown(), m_regions.groups(), m_regions.mapping(),
                                    regionNo));
}

void MultiRubberBandLabel::onBandColorChanged(int regionNo, const QColor& color)
{
    m_lines.setColor(regionNo, color);
    emit regionColorChanged(regionNo, color);
}

void MultiRubberBandLabel::report(const QVector<RegionChange>& changes)
{
    for (const RegionChange& change : changes)
        m_regions[change.region].waiting = change.rectangle;
    m_regions.applyWaiting();
    const QPointer<MultiRubberBandLabel> guard(this);
    arrange();
    for (const RegionChange& change : changes) {
        if (guard)
            emit regionGeometryChanged(change.region, change.rectangle);
    }
}

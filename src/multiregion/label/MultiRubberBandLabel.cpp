#include "multiregion/label/MultiRubberBandLabel.h"

#include "multiregion/label/RectangleRubberBand.h"

#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize preferredSize(400, 300);
constexpr double smallestFactor = 1e-5;

} // namespace

// Receivers may change anything, and delete the page: signals come last, or what follows is
// guarded.

MultiRubberBandLabel::MultiRubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color,
                                           const QString& mode, QWidget* parent)
    : BandSurroundings({sensorWidth, sensorHeight}, color, parent)
    , m_regions(color)
    , m_drag(&m_regions)
    , m_bands(this, &m_regions)
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
    if (regionNo == m_bands.selected())
        return;
    m_bands.select(regionNo);
    emit highlightSelectedRegion(regionNo);
}

QColor MultiRubberBandLabel::shownColor(int regionNo) const
{
    const KnownRegion& region = m_regions.at(regionNo);
    return region.band ? region.band->shownColor() : region.color;
}

void MultiRubberBandLabel::announceRegions()
{
    if (signalsBlocked())
        return;
    if (m_arrangePending)
        arrangeSilently();
    m_announceSoon.stop();
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
    m_bands.hide(index);
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
    if (LineRubberBand* line = guard ? m_bands.lineAt(point) : nullptr)
        m_drag.begin(line);
    else if (RectangleRubberBand* band = guard ? m_bands.bandAt(point) : nullptr)
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
    m_bands.follow(m_drag);
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
}

/// A line leaves the cursor as it is.
void MultiRubberBandLabel::hover(const QPoint& position)
{
    const QPoint point = clampedToPicture(position);
    if (m_bands.lineAt(point))
        return;
    if (const RectangleRubberBand* band = m_bands.bandAt(point))
        setCursor(cursorForGrab(band->grabAt(point)));
    else
        unsetCursor();
}

/// All but the signal that belongs here waits until whoever resizes the label is done with it.
void MultiRubberBandLabel::resizeEvent(QResizeEvent* event)
{
    const QSize before = m_regions.mapping().shown;
    BandSurroundings::resizeEvent(event);
    rescale();
    arrangeSilently();
    const QSize& shown = m_regions.mapping().shown;
    const double factorX = static_cast<double>(shown.width()) / std::max(1, before.width());
    const double factorY = static_cast<double>(shown.height()) / std::max(1, before.height());
    if (!before.isEmpty() && factorX >= smallestFactor)
        emit labelGeometryChanged(factorX, factorY, shown);
}

void MultiRubberBandLabel::showRectangle(int regionNo)
{
    using Label = MultiRubberBandLabel;
    using Band = RectangleRubberBand;
    const Band* band = m_bands.show(regionNo);
    connect(band, &Band::regionBandSelected, this, &Label::onBandPressed);
    connect(band, &Band::geometryChanged, this, &Label::onBandGeometryChanged);
    connect(band, &Band::colorChanged, this, &Label::onBandColorChanged);
    connect(this, &Label::regionActivated, band, &Band::onNeighbourRegionActivated);
    const QPointer<MultiRubberBandLabel> guard(this);
    emit regionActivated(regionNo, true);
    if (guard)
        arrange();
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
    m_bands.arrange(m_drag);
    m_announceSoon.start();
}

void MultiRubberBandLabel::announce(int regionNo)
{
    const QPointer<MultiRubberBandLabel> guard(this);
    if (isRegionShown(regionNo))
        emit regionColorChanged(regionNo, shownColor(regionNo));
    if (!guard)
        return;
    const QStringList features = sharedFeatures(regionNo, m_regions.groups());
    const QStringList before = std::exchange(m_regions[regionNo].toldConstraints, features);
    if (!before.isEmpty() && features != before)
        emit constraintsActivated(regionNo, {});
    if (guard && !features.isEmpty() && features != before)
        emit constraintsActivated(regionNo, features);
    if (guard)
        announceRange(regionNo);
}

void MultiRubberBandLabel::announceRange(int regionNo)
{
    if (!isRegionShown(regionNo))
        return;
    const QRect range = rangeBetweenNeighbours(m_regions.shown(), m_regions.mode(),
                                               m_regions.groups(), sensorSize(), regionNo);
    if (range != std::exchange(m_regions[regionNo].toldRange, range))
        emit regionRangeChanged(regionNo, range);
}

void MultiRubberBandLabel::onBandPressed(int regionNo)
{
    const QPointer<MultiRubberBandLabel> guard(this);
    selectRegion(regionNo);
    if (guard)
        emit regionSelected(regionNo);
}

/// At the end of the band's drag, or when a neighbour has brought or solved a conflict.
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
    m_bands.setLineColor(regionNo, color);
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

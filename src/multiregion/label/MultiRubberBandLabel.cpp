#include "multiregion/label/MultiRubberBandLabel.h"

#include "features/NumberConversion.h"
#include "multiregion/label/DragChanges.h"
#include "multiregion/label/LineRubberBand.h"
#include "multiregion/label/RectangleRubberBand.h"
#include "multiregion/label/RegionBandLimits.h"
#include "multiregion/label/RegionRanges.h"

#include <QResizeEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr int minimumSide = 100; ///< label pixels
constexpr QSize preferredSize(400, 300);
constexpr double smallestFactor = 1e-5;

QColor placeholderColor(const QColor& color)
{
    return needsOpaquePlaceholder(QOperatingSystemVersion::current()) ? QColor(Qt::darkGray)
                                                                      : placeholderTint(color);
}

double ratio(int newLength, int oldLength)
{
    return oldLength > 0 ? static_cast<double>(newLength) / oldLength : 0.0;
}

} // namespace

MultiRubberBandLabel::MultiRubberBandLabel(int sensorWidth, int sensorHeight, const QColor& color,
                                           const QString& arrangementMode, QWidget* parent)
    : QLabel(parent)
    , m_color(color)
    , m_mode(::arrangementMode(arrangementMode))
    , m_mapping{{sensorWidth, sensorHeight}, {}}
    , m_regions(color)
    , m_lines(this)
    , m_announcements(this)
{
    setAttribute(Qt::WA_MouseTracking);
    setMinimumSize(minimumSide, minimumSide);
    m_placeholder.showPlaceholder(placeholderColor(color), m_mapping.sensor);
    showBackground(
        m_placeholder.fitted(m_mapping.sensor.boundedTo(SensorBackground::largestLabel)));
    // The first resize tells its factors from the sensor's size, however large a pixmap it found.
    m_mapping.shown = m_mapping.sensor;
    // Bands count from the left in right-to-left layouts too.
    setLayoutDirection(Qt::LeftToRight);
    setAlignment(Qt::AlignTop);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MultiRubberBandLabel::setSensorSize(const QSize& size)
{
    if (size == m_mapping.sensor)
        return;
    m_mapping.sensor = size;
    m_placeholder.showPlaceholder(placeholderColor(m_color), size);
    m_picture = {};
    fitBackground();
    dropDrag();
    arrange();
}

void MultiRubberBandLabel::setArrangementMode(const QString& mode)
{
    const ArrangementMode newMode = ::arrangementMode(mode);
    if (newMode == m_mode)
        return;
    m_mode = newMode;
    dropDrag();
    arrange();
}

void MultiRubberBandLabel::setRegionLimits(int regionNo, const RegionSizeLimits& limits)
{
    m_regions.setLimits(regionNo, limits);
    if (auto* band = m_bands.value(regionNo))
        band->setSizeLimits(regionBandLimits(m_regions, regionNo, m_mapping));
}

void MultiRubberBandLabel::selectRegion(int regionNo)
{
    if (regionNo == m_selectedRegion && regionNo == m_pressedRegion)
        return;
    m_selectedRegion = regionNo;
    for (RectangleRubberBand* band : qAsConst(m_bands))
        band->highlightIfSelected(regionNo);
    restack();
    emit highlightSelectedRegion(regionNo);
}

QColor MultiRubberBandLabel::shownColor(int regionNo) const
{
    const RectangleRubberBand* band = m_bands.value(regionNo);
    return band ? band->shownColor() : regionColor(regionNo);
}

int MultiRubberBandLabel::regionUnder(const QPoint& point) const
{
    return m_regions.regionAt(point, m_selectedRegion);
}

int MultiRubberBandLabel::intersectingRegion(int regionNo, const QRect& band) const
{
    return m_regions.intersecting(regionNo, band);
}

bool MultiRubberBandLabel::canBeFollowed(int regionNo, const QRect& band) const
{
    return membersCanFollow(m_regions, m_groups, regionNo, band);
}

QVector<int> MultiRubberBandLabel::sharingRegions(int regionNo, Qt::Orientation axis) const
{
    for (const ConstraintGroup& group : m_groups) {
        if (group.axis() == axis && group.members.contains(regionNo))
            return group.members;
    }
    return {};
}

void MultiRubberBandLabel::announceRegions()
{
    if (m_arrangePending) {
        arrange();
        return;
    }
    const QList<int> shown = m_bands.keys();
    for (const int region : shown)
        emit regionColorChanged(region, shownColor(region));
    announceConstraints();
    updateRegionRangeRect();
}

void MultiRubberBandLabel::connectLine(LineRubberBand* line)
{
    connect(this, &MultiRubberBandLabel::mouseMoved, line, &LineRubberBand::moveToPoint);
    connect(this, &MultiRubberBandLabel::rubberChangeFinished, line,
            &LineRubberBand::onMoveFinished);
    for (RectangleRubberBand* band : qAsConst(m_bands))
        connect(line, &LineRubberBand::geometryChanged, band,
                &RectangleRubberBand::onConstraintBandChanged);
}

QSize MultiRubberBandLabel::sizeHint() const
{
    return m_mapping.sensor.isEmpty() ? preferredSize
                                      : m_mapping.sensor.scaled(preferredSize, Qt::KeepAspectRatio);
}

void MultiRubberBandLabel::removeRectangle(int index)
{
    RectangleRubberBand* band = m_bands.value(index);
    if (!band)
        return;
    if (m_dragState == BandDrag && m_draggedRegion == index)
        dropDrag();
    m_bands.remove(index);
    m_regions.setShown(index, false);
    // It may be on the stack, in the midst of its own report.
    band->hide();
    band->disconnect();
    disconnect(band);
    band->deleteLater();
    emit regionActivated(index, false);
    arrange();
}

void MultiRubberBandLabel::updateRegionRangeRect()
{
    if (signalsBlocked())
        return;
    const QList<int> shown = m_bands.keys();
    for (const int region : shown)
        m_announcements.announceRange(
            region, rangeBetweenNeighbours(m_regions, m_mode, m_groups, m_mapping.sensor, region));
}

void MultiRubberBandLabel::setBackgroundImage(std::shared_ptr<QPixmap> image, QSize sensorSize,
                                              QRect cropRect)
{
    m_picture = {};
    if (image && !image->isNull())
        m_picture = KeptPicture({image, sensorSize, cropRect}, m_mapping.sensor);
    fitBackground();
    arrange();
}

void MultiRubberBandLabel::onRegionColorChanged(int regionNo, QColor newColor)
{
    m_regions.setColor(regionNo, newColor);
    if (auto* band = m_bands.value(regionNo))
        band->setOwnColor(newColor);
}

void MultiRubberBandLabel::onRegionGeometryChanged(int regionNo, QRect geometry)
{
    if (isDragging()) {
        m_waiting.insert(regionNo, geometry);
        return;
    }
    if (m_regions.rectangle(regionNo) == geometry)
        return;
    m_regions.setRectangle(regionNo, geometry);
    if (isRegionShown(regionNo))
        arrangeUnlessBlocked();
}

void MultiRubberBandLabel::onRegionActivated(int regionNo, bool active)
{
    if (!active)
        removeRectangle(regionNo);
    else if (!isRegionShown(regionNo))
        showRectangle(regionNo);
}

void MultiRubberBandLabel::resizeEvent(QResizeEvent* event)
{
    const SensorMapping before = m_mapping;
    QRect draggedTo;
    if (m_dragState == BandDrag)
        draggedTo = changesAfterBandDrag(m_regions, m_groups, m_mapping, m_draggedRegion,
                                         m_regions.band(m_draggedRegion))
                        .constFirst()
                        .rectangle;

    fitBackground();
    const double factorX = ratio(m_mapping.shown.width(), before.shown.width());
    const double factorY = ratio(m_mapping.shown.height(), before.shown.height());
    QLabel::resizeEvent(event);
    arrange();
    if (m_dragState == BandDrag)
        carryDragOver(draggedTo, before);
    if (factorX >= smallestFactor)
        emit labelGeometryChanged(factorX, factorY, m_mapping.shown);
}

void MultiRubberBandLabel::showEvent(QShowEvent* event)
{
    QLabel::showEvent(event);
    if (m_pictureWaits)
        fitBackground();
}

/// Placeholder and picture have the same size, so that bands stay where they are.
void MultiRubberBandLabel::fitBackground()
{
    const QSize fitted = m_placeholder.fittedSize(size());
    const bool isPicture = !m_picture.isNull() && !fitted.isEmpty();
    m_pictureWaits = isPicture && !isVisible();
    if (m_pictureWaits)
        m_mapping.shown = fitted;
    else
        showBackground(isPicture ? m_picture.scaled(fitted) : m_placeholder.fitted(size()));
}

/// An empty pixmap leaves the size as it was: what follows needs a scale to go from.
void MultiRubberBandLabel::showBackground(const QPixmap& pixmap)
{
    if (!pixmap.isNull())
        m_mapping.shown = pixmap.size();
    setPixmap(pixmap);
    coverWithPicture(this, pixmap);
}

void MultiRubberBandLabel::showRectangle(int regionNo)
{
    auto* band = new RectangleRubberBand(
        regionNo, labelRect(m_regions.rectangle(regionNo), m_mapping),
        regionBandLimits(m_regions, regionNo, m_mapping).minimum, regionColor(regionNo), this);
    connect(band, &RectangleRubberBand::regionBandSelected, this,
            &MultiRubberBandLabel::onBandPressed);
    connect(band, &RectangleRubberBand::geometryChanged, this,
            &MultiRubberBandLabel::onBandGeometryChanged);
    connect(band, &RectangleRubberBand::colorChanged, this,
            &MultiRubberBandLabel::onBandColorChanged);
    connect(this, &MultiRubberBandLabel::mouseMoved, band, &RectangleRubberBand::resizeMoveToPoint);
    connect(this, &MultiRubberBandLabel::rubberChangeFinished, band,
            &RectangleRubberBand::onResizeFinished);
    connect(this, &MultiRubberBandLabel::regionActivated, band,
            &RectangleRubberBand::onNeighbourRegionActivated);
    m_lines.connectTo(band);

    m_bands.insert(regionNo, band);
    m_regions.setShown(regionNo, true);
    placeBand(regionNo);
    band->highlightIfSelected(m_selectedRegion);
    band->show();
    emit regionActivated(regionNo, true);
    arrangeUnlessBlocked();
    restack();
}

/// Brings everything on the label in line with what is known of the regions, except for the band
/// that is being dragged.
void MultiRubberBandLabel::arrange()
{
    m_arrangePending = false;
    if (m_dragState == LineDrag)
        dropDrag();
    const QVector<int> shown = m_regions.shown();
    m_groups = constraintGroups(m_mode, shown);
    if (!m_mapping.isEmpty()) {
        for (const int region : shown) {
            if (region != m_draggedRegion)
                placeBand(region);
        }
    }
    m_lines.update(m_groups, m_regions);
    testConflicts();
    announceConstraints();
    updateRegionRangeRect();
}

/// With its signals blocked the label is being told of many regions: each compared with all the
/// others, for every one of them, would make the page wait.
void MultiRubberBandLabel::arrangeUnlessBlocked()
{
    if (!signalsBlocked()) {
        arrange();
    } else if (!std::exchange(m_arrangePending, true)) {
        QMetaObject::invokeMethod(this, &MultiRubberBandLabel::arrangeIfPending,
                                  Qt::QueuedConnection);
    }
}

void MultiRubberBandLabel::arrangeIfPending()
{
    if (m_arrangePending)
        arrange();
}

void MultiRubberBandLabel::placeBand(int regionNo)
{
    const QRect rect = labelRect(m_regions.rectangle(regionNo), m_mapping);
    m_regions.setBand(regionNo, rect);
    m_bands[regionNo]->setGeometry(rect);
    m_bands[regionNo]->setSizeLimits(regionBandLimits(m_regions, regionNo, m_mapping));
}

/// As a press finds them: lines, the selected band, the others by number.
void MultiRubberBandLabel::restack()
{
    for (RectangleRubberBand* band : qAsConst(m_bands))
        band->raise();
    if (auto* band = m_bands.value(m_selectedRegion))
        band->raise();
    m_lines.raise();
}

void MultiRubberBandLabel::testConflicts()
{
    const QList<RectangleRubberBand*> bands = m_bands.values();
    for (RectangleRubberBand* band : bands)
        band->onIntersectionFound(intersectingRegion(band->regionNo(), band->geometry()));
}

void MultiRubberBandLabel::announceConstraints()
{
    if (signalsBlocked())
        return;
    QMap<int, QStringList> constraints;
    const QList<int> shown = m_bands.keys();
    for (const int region : shown) {
        const QStringList features = sharedFeatures(region, m_groups);
        if (!features.isEmpty())
            constraints.insert(region, features);
    }
    m_announcements.announceConstraints(constraints);
}

/// After a resize: the drag goes on at the new scale.
/// @param region where the dragged band stood, sensor pixels
void MultiRubberBandLabel::carryDragOver(const QRect& region, const SensorMapping& before)
{
    auto* band = m_bands[m_draggedRegion];
    const QPoint press = band->pressPoint();
    const QRect dragged = labelRect(region, m_mapping);
    band->rescaleDrag({toInt(press.x() * ratio(m_mapping.shown.width(), before.shown.width())),
                       toInt(press.y() * ratio(m_mapping.shown.height(), before.shown.height()))},
                      labelRect(m_regions.rectangle(m_draggedRegion), m_mapping));
    band->setSizeLimits(regionBandLimits(m_regions, m_draggedRegion, m_mapping));
    band->setGeometry(dragged);
    m_regions.setBand(m_draggedRegion, dragged);
    m_lines.follow(m_draggedRegion, m_regions);
}

void MultiRubberBandLabel::onBandColorChanged(int regionNo, const QColor& color)
{
    m_lines.setColor(regionNo, color);
    emit regionColorChanged(regionNo, color);
}

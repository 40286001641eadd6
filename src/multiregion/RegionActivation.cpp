#include "multiregion/RegionActivation.h"

#include "multiregion/RegionCamera.h"
#include "multiregion/RegionTabs.h"
#include "multiregion/RegionWriter.h"
#include "multiregion/rules/DefaultLayouts.h"
#include "multiregion/rules/RegionText.h"
#include "sensor/Span.h"
#include "widgets/OverrideCursor.h"

#include <mutex>
#include <utility>

RegionActivation::RegionActivation(RegionCamera& camera, RegionTabs& tabs, RegionWriter& writer,
                                   Ask ask)
    : m_camera(camera)
    , m_tabs(tabs)
    , m_writer(writer)
    , m_ask(std::move(ask))
{
}

void RegionActivation::toggle(int region, bool on)
{
    const Toggle toggle = toggleFor(arrangementMode(m_tabs.mode()), region, on, m_tabs.active());
    if (toggle.kind == Toggle::Place)
        place(region, toggle.axis);
    else if (toggle.kind == Toggle::SwitchOn)
        m_writer.writeActive(region, true);
    else
        switchOff(region, toggle);
}

void RegionActivation::switchOff(int region, const Toggle& toggle)
{
    QVector<int> off = toggle.off;
    if (toggle.question != Question::None) {
        const QPointer<RegionActivation> self(this);
        const std::optional<Answer> answer = m_ask(toggle.question);
        const bool isChoice = toggle.question == Question::RowOrColumnOff;
        if (!self || (isChoice && answer == Answer::None))
            return;
        if (!answer || answer == Answer::Rejected || answer == Answer::None) {
            m_tabs.setChecked(region, true);
            return;
        }
        if (answer == Answer::Column)
            off = toggle.offColumn;
    }
    const RegionWriter::Call call(m_writer);
    for (const int each : qAsConst(off))
        m_writer.writeActive(each, false);
}

/// The button stays as it is where the region finds no place.
void RegionActivation::place(int region, Qt::Orientation axis)
{
    const QPointer<RegionActivation> self(this);
    std::optional<QRect> placed;
    {
        const RegionWriter::Call call(m_writer);
        placed = readPlacement(region, axis);
        if (!placed)
            m_tabs.setChecked(region, m_tabs.isActive(region));
        else if (!placed->isNull())
            write(region, {}, *placed);
    }
    if (self && placed && !placed->isNull())
        completeTile(region, *placed);
}

/// With both partners of the corner active the tile is to be completed: the user is told, and the
/// new region is placed again if the corner would have a place.
void RegionActivation::completeTile(int region, const QRect& placed)
{
    const Question question
        = toggleFor(arrangementMode(m_tabs.mode()), region, true, m_tabs.active()).question;
    if (question == Question::None)
        return;
    const QPointer<RegionActivation> self(this);
    const std::optional<Answer> answer = m_ask(question);
    if (!self || answer != Answer::Accepted)
        return;
    const RegionWriter::Call call(m_writer);
    const bool isColumn = question == Question::ColumnOn;
    // Either may have been switched off by another client meanwhile.
    const bool areOn = readOn(isColumn ? 2 : 1) && readOn(region);
    const std::optional<QRect> test = !areOn ? std::nullopt
        : isColumn                           ? readPlacement(3, Qt::Horizontal)
                                             : readPlacement(2, Qt::Vertical);
    if (test && !test->isNull())
        write(region, QRect(placed.topLeft(), QSize(1, 1)), placed);
    else
        m_writer.select(region);
}

/// Where a region may be activated, null for nowhere; leaves it selected. Region 0 has no
/// predecessor and is never placed. Nothing when the camera does not tell or refuses a selection.
std::optional<QRect> RegionActivation::readPlacement(int region, Qt::Orientation axis)
{
    if (region < 1 || !m_tabs.has(region))
        return QRect();
    const auto geometryOf = [this](int each) {
        return m_writer.select(each) ? m_camera.readGeometry() : std::nullopt;
    };
    const std::optional<QSize> sensor = m_camera.readSensorSize();
    const std::optional<QRect> first = geometryOf(0);
    const std::optional<QRect> before = first ? geometryOf(region - 1) : std::nullopt;
    const std::optional<QRect> current = before ? geometryOf(region) : std::nullopt;
    const std::optional<SizeRange> size = current ? m_camera.readSizeRange(axis) : std::nullopt;
    if (!sensor || !size)
        return std::nullopt;
    const QRect placed
        = placedRegion(axis, {lengthOf(*sensor, axis), *first, *before, *current, *size});
    if (placed.isNull())
        m_writer.log(
            RegionText::tr("Region%1 cannot be activated into a valid configuration due to the "
                           "minimum size.")
                .arg(region));
    return placed;
}

bool RegionActivation::readOn(int region)
{
    return m_writer.select(region) && m_camera.readOn().value_or(false);
}

void RegionActivation::write(int region, const QRect& first, const QRect& placed)
{
    m_writer.save(region, first);
    m_writer.save(region, placed);
}

void RegionActivation::loadDefaults(const QColor& color)
{
    // From the question on, or a second one could be answered first. The page may go meanwhile.
    const std::shared_ptr<QMutex> loadLock = m_loadLock;
    const std::unique_lock<QMutex> lock(*loadLock, std::try_to_lock);
    if (!lock)
        return;
    const QPointer<RegionActivation> self(this);
    const std::optional<Answer> answer = m_ask(Question::LoadDefaults);
    if (!self || answer != Answer::Accepted)
        return;
    const OverrideCursor cursor(Qt::WaitCursor);
    const RegionWriter::Call call(m_writer);
    m_writer.load([&] { applyDefaults(color); });
    m_tabs.open(0);
    m_writer.tellCurrent(0);
}

void RegionActivation::applyDefaults(const QColor& color)
{
    const std::optional<QSize> sensor = m_camera.readSensorSize();
    if (!sensor)
        return;
    for (int region = m_tabs.count() - 1; region >= 0; --region) {
        m_writer.save(region, {});
        m_writer.writeActive(region, false);
        if (m_writer.isCameraLost())
            return;
    }
    m_tabs.open(0);
    if (!m_writer.select(0))
        return;
    const auto width = m_camera.readSizeRange(Qt::Horizontal);
    const auto height = m_camera.readSizeRange(Qt::Vertical);
    if (!width || !height)
        return;
    const DefaultLayout layout
        = defaultLayout(m_tabs.mode(), {*sensor, *width, *height, m_tabs.count()});
    if (!layout.message.isEmpty())
        m_writer.log(layout.message);
    for (auto it = layout.regions.cbegin(); it != layout.regions.cend(); ++it) {
        m_writer.save(it.key(), it.value());
        m_tabs.setColor(it.key(), color);
        m_writer.tellColor(it.key(), color);
    }
}

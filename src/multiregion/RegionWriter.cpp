#include "multiregion/RegionWriter.h"

#include "multiregion/RegionCamera.h"
#include "multiregion/RegionTabs.h"
#include "multiregion/rules/RegionText.h"

#include <utility>

namespace {

constexpr int manyQuestions = 300; ///< to take a while on a real camera

} // namespace

RegionWriter::RegionWriter(RegionCamera& camera, RegionTabs& tabs, CameraLink& link, Hold hold)
    : m_camera(camera)
    , m_tabs(tabs)
    , m_link(link)
    , m_hold(std::move(hold))
{
}

RegionWriter::Call::Call(RegionWriter& writer)
    : m_writer(&writer)
{
    if (writer.m_calls++ > 0)
        return;
    writer.m_tabs.silence(true);
    writer.m_memory = writer.m_link.memory();
    writer.m_selected.reset();
    writer.m_heardBefore = writer.m_link.heard();
}

RegionWriter::Call::~Call()
{
    if (!m_writer || m_writer->m_calls-- > 1)
        return;
    m_writer->readTable();
    m_writer->m_held.reset();
    m_writer->m_memory.reset();
    m_writer->m_tabs.silence(false);
    m_writer->m_tabs.announce(); // whose receivers may let the page go
    if (m_writer)
        m_writer->deliver();
}

void RegionWriter::readTable()
{
    const int region = m_tabs.current();
    if (m_selected != region || !m_moved.remove(region))
        return;
    const bool isTold = m_tabs.refreshTable();
    // Most of it has just been told to the table.
    const std::optional<RegionState> state = m_camera.read(true);
    if (state)
        m_tabs.show(region, *state);
    if (!isTold || !state)
        keepUntold(region);
}

bool RegionWriter::select(int region)
{
    const Call call(*this);
    if (!m_held)
        m_held = m_hold();
    if (m_selected != region && m_link.heard() - m_heardBefore > manyQuestions)
        m_tabs.repaint();
    m_watch.selecting(m_camera.lastSelected() != region);
    const RegionCamera::Selection selection = m_camera.select(region);
    const bool isDone = selection == RegionCamera::Selection::Done;
    m_selected = isDone ? std::optional(region) : std::nullopt;
    if (isDone)
        return true;
    if (selection == RegionCamera::Selection::Unknown) {
        keepUntold(region);
        if (m_link.isDoubtful())
            m_camera.readOn(); // one feature alone makes no loss
    }
    log(m_camera.failureOf(region));
    return false;
}

void RegionWriter::open(int region)
{
    const Call call(*this);
    select(region);
    if (region != m_tabs.current() || region == m_opened)
        return;
    if (m_opened && m_moved.contains(*m_opened))
        keepUntold(*m_opened);
    m_moved << region;
    m_opened = region;
}

void RegionWriter::save(int region, const QRect& rect)
{
    const Call call(*this);
    // Of the region selected until now: the camera is written in the order it gives.
    const std::optional<QSize> former = m_camera.readSize();
    const bool isKnown = former && (rect.isNull() || m_selected == region);
    if (select(region)) {
        m_moved << region;
        const std::optional<QSize> own = isKnown ? former : m_camera.readSize();
        m_camera.writeGeometry(rect, former.value_or(own.value_or(QSize())));
        if (!rect.isNull()) {
            // In the order that suits another region the camera may have cut off what fits.
            const auto written = own != former ? m_camera.readGeometry() : std::nullopt;
            if (written && *written != rect)
                m_camera.writeGeometry(rect, written->size());
            m_camera.writeOn(true);
            tellActive(region, true);
        }
    }
    readAll();
    tellCurrent(region);
}

void RegionWriter::writeActive(int region, bool on)
{
    const Call call(*this);
    const bool wasShown = m_tabs.isActive(region);
    if (!select(region)) {
        m_tabs.setChecked(region, wasShown);
        return;
    }
    const bool before = m_camera.readOn().value_or(wasShown);
    const std::optional<bool> now = m_camera.writeOn(on);
    if (!now)
        keepUntold(region);
    m_tabs.setChecked(region, now.value_or(before));
    if (now && *now != before)
        tellActive(region, *now);
    m_moved << region;
    if (!m_isLoading)
        show(region);
}

void RegionWriter::writeFeature(const QVector<int>& regions, const QString& name,
                                const QVariant& value)
{
    const Call call(*this);
    bool isLost = false;
    for (const int region : regions) {
        if (isLost || !select(region) || !m_camera.writeFeature(name, value)) {
            log(RegionText::tr("SubRegion: %1, Saving feature '%2' to value=%3 failed.")
                    .arg(QString::number(region), name, value.toString()));
            isLost = m_link.isLost();
        }
        m_moved << region;
    }
    readAll();
}

void RegionWriter::readWhole()
{
    for (int region = 0; region < m_tabs.count(); ++region)
        m_moved << region;
    readAll();
}

void RegionWriter::readAll()
{
    if (m_isLoading)
        return;
    const Call call(*this);
    m_untold.clear();
    m_watch.lookBegins();
    for (int region = 0; region < m_tabs.count(); ++region) {
        readRegion(region);
        tellColor(region, m_tabs.color(region));
    }
    returnToCurrent();
    m_watch.looked(true);
}

void RegionWriter::load(const std::function<void()>& work)
{
    const Call call(*this);
    m_isLoading = true;
    work();
    m_isLoading = false;
    readAll();
}

/// One after the other, and each second one alone while the camera does not tell.
void RegionWriter::readUntold()
{
    if (m_untold.isEmpty())
        return;
    const Call call(*this);
    bool isTold = true;
    for (int left = m_untold.size(); left > 0 && isTold; --left) {
        const int region = m_untold.takeFirst();
        readRegion(region);
        readTable();
        isTold = !m_untold.contains(region);
    }
    returnToCurrent();
}

void RegionWriter::readRegion(int region)
{
    // A valid region is on: follow() shows it where it was not shown before.
    if (!selectUnlessLost(region) || follow(region))
        return;
    // Tables of other inactive regions are filled when they are seen.
    if (m_tabs.isActive(region) || region == m_tabs.current())
        show(region);
}

bool RegionWriter::selectUnlessLost(int region)
{
    if (!m_link.isLost())
        return select(region);
    keepUntold(region);
    return false;
}

void RegionWriter::returnToCurrent()
{
    if (!m_link.isLost())
        select(m_tabs.current());
}

void RegionWriter::readSelected()
{
    const Call call(*this);
    m_selected = m_camera.readSelected();
    if (!m_selected)
        keepUntold(m_tabs.current()); // what has changed is told of the selected region alone
    if (!m_selected || !m_tabs.has(*m_selected) || follow(*m_selected))
        return;
    m_moved << *m_selected;
    if (m_tabs.isActive(*m_selected))
        show(*m_selected);
}

void RegionWriter::lookIfDue()
{
    if (!m_watch.isLookDue())
        return;
    const Call call(*this);
    bool found = false;
    m_watch.lookBegins();
    for (int region = 0; region < m_tabs.count(); ++region)
        found = (selectUnlessLost(region) && follow(region)) || found;
    returnToCurrent();
    m_watch.looked(found);
}

/// Another client may have switched the region, which is selected: answers whether.
bool RegionWriter::follow(int region)
{
    const std::optional<bool> isOn = m_camera.readOn();
    if (!isOn)
        keepUntold(region);
    if (!isOn || *isOn == m_tabs.isActive(region) || (*isOn && !m_camera.readIsValid()))
        return false;
    tellActive(region, *isOn);
    m_moved << region;
    show(region);
    return true;
}

/// The open tab's region is shown when its table is read.
void RegionWriter::show(int region)
{
    if (region == m_tabs.current()) {
        m_moved << region;
        return;
    }
    std::optional<RegionState> state = m_camera.read(m_moved.contains(region));
    if (state && !state->limits && state->geometry != m_tabs.geometry(region))
        state = m_camera.read(true);
    if (!state) {
        keepUntold(region);
        return;
    }
    m_tabs.show(region, *state);
    if (state->limits)
        m_moved.remove(region);
}

void RegionWriter::keepUntold(int region)
{
    if (!m_untold.contains(region))
        m_untold << region;
}

void RegionWriter::tell(const std::function<void()>& emission)
{
    m_signals.push_back(emission);
    deliver();
}

void RegionWriter::deliver()
{
    const QPointer<RegionWriter> self(this);
    while (self && m_calls == 0 && !m_signals.empty()) {
        const std::function<void()> next = std::move(m_signals.front());
        m_signals.pop_front();
        next();
    }
}

void RegionWriter::tellActive(int region, bool active)
{
    m_tabs.setActive(region, active);
    tell([=] { emit regionActivated(region, active); });
}

void RegionWriter::tellCurrentAtOnce(int region)
{
    m_selected.reset(); // the receiver may select another
    emit currentRegionChanged(region);
}

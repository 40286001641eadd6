#include "multiregion/RegionWriter.h"

#include "multiregion/RegionCamera.h"
#include "multiregion/RegionTabs.h"
#include "multiregion/rules/RegionText.h"

#include <utility>

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
    if (writer.m_calls++ == 0)
        writer.m_tabs.silence(true);
}

RegionWriter::Call::~Call()
{
    if (!m_writer || --m_writer->m_calls > 0)
        return;
    m_writer->m_tabs.silence(false);
    m_writer->m_tabs.announce(); // whose receivers may let the page go
    if (m_writer)
        m_writer->deliver();
}

RegionWriter::Loading::Loading(RegionWriter& writer)
    : m_writer(&writer)
    , m_hold(writer.m_hold())
{
    writer.m_isLoading = true;
}

RegionWriter::Loading::~Loading()
{
    if (m_writer)
        m_writer->m_isLoading = false;
}

bool RegionWriter::select(int region)
{
    m_watch.selecting(m_camera.lastSelected() != region);
    const RegionCamera::Selection selection = m_camera.select(region);
    m_watch.selected();
    if (selection == RegionCamera::Selection::Done)
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
    if (select(region) && !m_isLoading)
        refreshTable(region);
}

void RegionWriter::save(int region, const QRect& rect)
{
    const Call call(*this);
    // Of the region selected until now: the camera is written in the order it gives.
    const std::optional<QSize> former = m_camera.readSize();
    if (select(region)) {
        const std::optional<QSize> own = m_camera.readSize();
        m_camera.writeGeometry(rect, former.value_or(own.value_or(QSize())));
        if (!rect.isNull()) {
            // In the order that suits another region the camera may have cut off what fits.
            const std::optional<QRect> written = m_camera.readGeometry();
            if (own != former && written && *written != rect)
                m_camera.writeGeometry(rect, written->size());
            m_camera.writeOn(true);
            // The neighbours test against what the camera made of it.
            show(region);
            tellActive(region, true);
        }
    }
    readAll();
    tellCurrent(region);
}

void RegionWriter::setActive(int region, bool on)
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
    show(region);
    m_tabs.setChecked(region, now.value_or(before));
    if (now && *now != before)
        tellActive(region, *now);
}

void RegionWriter::setFeature(const QVector<int>& regions, const QString& name,
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
    }
    readAll();
}

void RegionWriter::readAll()
{
    if (m_isLoading)
        return;
    const Call call(*this);
    const Loading loading(*this);
    m_untold.clear();
    m_watch.lookBegins();
    for (int region = 0; region < m_tabs.count(); ++region) {
        readRegion(region);
        tellColor(region, m_tabs.color(region));
    }
    returnToCurrent();
    m_watch.looked(true);
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
        isTold = !m_untold.contains(region);
    }
    returnToCurrent();
}

void RegionWriter::readRegion(int region)
{
    const CameraLink::ManyReads many(m_link);
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

void RegionWriter::readSelected(bool withMode)
{
    const Call call(*this);
    const std::optional<int> region = m_camera.readSelected();
    if (!region || !m_tabs.has(*region) || (withMode && follow(*region)))
        return;
    if (m_tabs.isActive(*region))
        show(*region);
    else
        refreshTable(*region);
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
    if (!isOn || *isOn == m_tabs.isActive(region))
        return false;
    show(region);
    tellActive(region, *isOn);
    return true;
}

void RegionWriter::show(int region)
{
    refreshTable(region);
    if (const std::optional<RegionState> state = m_camera.read())
        m_tabs.show(region, *state);
    else
        keepUntold(region);
}

void RegionWriter::refreshTable(int region)
{
    if (!m_tabs.refreshTable(region))
        keepUntold(region);
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

void RegionWriter::tellCurrent(int region)
{
    tell([=] { emit currentRegionChanged(region); });
}

void RegionWriter::tellColor(int region, const QColor& color)
{
    tell([=] { emit regionColorChanged(region, color); });
}

void RegionWriter::log(const QString& text)
{
    tell([=] { emit loggingMessage(ZebViewerLogMultiRegion, text); });
}

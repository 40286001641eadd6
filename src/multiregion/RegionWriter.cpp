#include "multiregion/RegionWriter.h"

#include "features/CameraLink.h"
#include "multiregion/RegionCamera.h"
#include "multiregion/RegionDisplay.h"

#include <QCoreApplication>

#include <utility>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MultiROIWidget)
};

} // namespace

RegionWriter::RegionWriter(RegionCamera& camera, RegionDisplay& display, CameraLink& link,
                           Hold hold)
    : m_camera(camera)
    , m_display(display)
    , m_link(link)
    , m_hold(std::move(hold))
{
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

bool RegionWriter::isCameraLost() const
{
    return m_link.isLost();
}

bool RegionWriter::select(int region)
{
    RegionCamera::Selection selection;
    {
        const ModeWatch::Selecting selecting(m_watch, m_camera.lastSelected() != region);
        selection = m_camera.select(region);
    }
    if (selection == RegionCamera::Selection::Done)
        return true;
    if (selection == RegionCamera::Selection::Unknown) {
        m_untold << region;
        if (m_link.isDoubtful())
            m_camera.readOn(); // one feature alone makes no loss
    }
    log(m_camera.failureOf(region));
    return false;
}

void RegionWriter::open(int region)
{
    const SignalQueue::Call call(m_queue);
    if (select(region) && !m_isLoading)
        refreshTable(region);
}

void RegionWriter::save(int region, const QRect& rect)
{
    const SignalQueue::Call call(m_queue);
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
    const SignalQueue::Call call(m_queue);
    const bool wasShown = m_display.isActive(region);
    if (!select(region)) {
        m_display.setChecked(region, wasShown);
        return;
    }
    const bool before = m_camera.readOn().value_or(wasShown);
    const std::optional<bool> now = m_camera.writeOn(on);
    if (!now)
        m_untold << region;
    show(region);
    m_display.setChecked(region, now.value_or(before));
    if (now && *now != before)
        tellActive(region, *now);
}

void RegionWriter::setFeature(const QVector<int>& regions, const QString& name,
                              const QVariant& value)
{
    const SignalQueue::Call call(m_queue);
    bool isLost = false;
    for (const int region : regions) {
        if (isLost || !select(region) || !m_camera.writeFeature(name, value)) {
            log(Text::tr("SubRegion: %1, Saving feature '%2' to value=%3 failed.")
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
    const SignalQueue::Call call(m_queue);
    const Loading loading(*this);
    m_untold.clear();
    m_watch.lookBegins();
    m_display.beginAll();
    for (int region = 0; region < m_display.count(); ++region) {
        readRegion(region);
        tellColor(region, m_display.color(region));
    }
    returnToCurrent();
    m_display.endAll();
    m_watch.looked(true);
}

void RegionWriter::readUntold()
{
    if (m_untold.isEmpty())
        return;
    const SignalQueue::Call call(m_queue);
    const QSet<int> regions = std::exchange(m_untold, {});
    for (const int region : regions)
        readRegion(region);
    returnToCurrent();
}

void RegionWriter::readRegion(int region)
{
    const CameraLink::ManyReads many(m_link);
    if (!selectUnlessLost(region) || follow(region))
        return;
    // Tables of other inactive regions are filled when they are seen.
    if (m_display.isActive(region) || region == m_display.current())
        show(region);
}

bool RegionWriter::selectUnlessLost(int region)
{
    if (!m_link.isLost())
        return select(region);
    m_untold << region;
    return false;
}

void RegionWriter::returnToCurrent()
{
    if (!m_link.isLost())
        select(m_display.current());
}

void RegionWriter::readSelected(bool withMode)
{
    const SignalQueue::Call call(m_queue);
    const std::optional<int> region = m_camera.readSelected();
    if (!region || !m_display.has(*region) || (withMode && follow(*region)))
        return;
    if (m_display.isActive(*region))
        show(*region);
    else
        refreshTable(*region);
}

void RegionWriter::lookIfDue()
{
    if (!m_watch.isLookDue())
        return;
    const SignalQueue::Call call(m_queue);
    bool found = false;
    m_watch.lookBegins();
    for (int region = 0; region < m_display.count(); ++region)
        found = (selectUnlessLost(region) && follow(region)) || found;
    returnToCurrent();
    m_watch.looked(found);
}

/// Another client may have switched the region, which is selected: answers whether.
bool RegionWriter::follow(int region)
{
    const std::optional<bool> isOn = m_camera.readOn();
    if (!isOn)
        m_untold << region;
    if (!isOn || *isOn == m_display.isActive(region))
        return false;
    show(region);
    tellActive(region, *isOn);
    return true;
}

void RegionWriter::show(int region)
{
    const std::optional<RegionState> state = m_camera.read();
    if (!state || !m_display.show(region, *state))
        m_untold << region;
}

void RegionWriter::refreshTable(int region)
{
    if (!m_display.refreshTable(region))
        m_untold << region;
}

void RegionWriter::tellActive(int region, bool active)
{
    m_display.setActive(region, active);
    m_queue.add([this, region, active] { emit regionActivated(region, active); });
}

void RegionWriter::tellCurrent(int region)
{
    m_queue.add([this, region] { emit currentRegionChanged(region); });
}

void RegionWriter::tellColor(int region, const QColor& color)
{
    m_queue.add([this, region, color] { emit regionColorChanged(region, color); });
}

void RegionWriter::log(const QString& text)
{
    if (!text.isEmpty())
        m_queue.add([this, text] { emit loggingMessage(ZebViewerLogMultiRegion, text); });
}

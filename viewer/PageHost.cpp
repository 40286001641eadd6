#include "PageHost.h"

#include "CameraSession.h"
#include "FrameGeometry.h"
#include "PluginHost.h"
#include "WorkNotice.h"

#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

namespace {

/// Whether a picture takes about a second to be copied and scaled.
bool isLarge(const QSize& picture)
{
    constexpr double pixelsInASecond = 1e8;
    return double(picture.width()) * picture.height() > pixelsInASecond;
}

} // namespace

PageHost::PageHost(PluginHost& plugin, CameraSession& session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_page(new QWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_page);

    // The texts carry the codes that SIGNAL() and SLOT() put in front.
    const QMap<QString, QVariant> connections{
        {QStringLiteral("connectWidgetToSignal"), QString::fromLatin1(SIGNAL(streaming(bool)))},
        {QStringLiteral("connectLoggingSlot"),
         QString::fromLatin1(SLOT(onLoggingMessage(ZebViewerLogCategory, const QString&)))},
        {QStringLiteral("connectSendFrameSignal"),
         QString::fromLatin1(SIGNAL(frameReady(const QPixmap&)))},
        {QStringLiteral("connectRequestFrameSlot"), QString::fromLatin1(SLOT(onFrameRequested()))},
    };
    const PluginHost::Result result = plugin.createTab(session.features(), m_page, connections);
    if (!result.succeeded()) {
        m_refusal = result.reason();
        showRefusal();
    }
    connect(&session, &CameraSession::streamingChanged, this, &PageHost::streaming);
    // The page is connected by now.
    emit streaming(session.isStreaming()); // clazy:exclude=incorrect-emit
}

QString PageHost::title() const
{
    const QString name = m_page ? m_page->accessibleName() : QString();
    return name.isEmpty() ? tr("No page") : name;
}

void PageHost::onLoggingMessage(ZebViewerLogCategory category, const QString& text)
{
    emit logged(category, text);
}

// The notice lets timers run: not in the midst of what the page does.
void PageHost::onFrameRequested()
{
    QMetaObject::invokeMethod(this, &PageHost::sendFrame, Qt::QueuedConnection);
}

void PageHost::sendFrame()
{
    const QPointer<PageHost> self(this);
    WorkNotice work(tr("Preparing the last picture …"), window());
    if (isLarge(wholePicture(m_session.camera().state())))
        work.showNow();
    if (!self)
        return;
    const QPixmap frame = m_session.lastFrame();
    if (!frame.isNull())
        emit frameReady(frame);
}

void PageHost::showRefusal()
{
    delete m_page;
    m_page = nullptr;

    auto* message = new QLabel(m_refusal, this);
    message->setObjectName(QStringLiteral("lblRefusal"));
    message->setAlignment(Qt::AlignCenter);
    message->setWordWrap(true);
    message->setMargin(32);
    message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout()->addWidget(message);
}

#include "LivePane.h"

#include "CameraSession.h"
#include "ElidedLabel.h"
#include "FrameGeometry.h"
#include "LivePicture.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace {

QString describeExposure(double microseconds)
{
    return microseconds < 1000.0 ? LivePane::tr("%1 µs").arg(microseconds, 0, 'g', 4)
                                 : LivePane::tr("%1 ms").arg(microseconds / 1000.0, 0, 'g', 4);
}

QString describe(const CameraSource& camera)
{
    const SensorState state = camera.state();
    const QRect frame = frameRect(state);
    QStringList parts;
    if (state.multipleRegions)
        parts << (state.regions.size() == 1 ? LivePane::tr("1 region")
                                            : LivePane::tr("%1 regions").arg(state.regions.size()));
    else
        parts << LivePane::tr("%1 × %2 at %3, %4")
                     .arg(frame.width())
                     .arg(frame.height())
                     .arg(frame.x())
                     .arg(frame.y());
    parts << LivePane::tr("binning %1 × %2").arg(state.binning.width()).arg(state.binning.height());
    if (!state.pixelFormat.isEmpty())
        parts << state.pixelFormat;
    if (state.exposureTime > 0.0)
        parts << describeExposure(state.exposureTime);
    if (const QString stream = camera.streamText(); !stream.isEmpty())
        parts << stream;
    return parts.join(QStringLiteral(" · "));
}

} // namespace

LivePane::LivePane(QWidget* parent)
    : QWidget(parent)
    , m_picture(new LivePicture(this))
    , m_caption(new ElidedLabel(this))
    , m_start(new QPushButton(tr("Sta&rt"), this))
    , m_stop(new QPushButton(tr("Sto&p"), this))
{
    m_start->setObjectName(QStringLiteral("btnStart"));
    m_stop->setObjectName(QStringLiteral("btnStop"));
    m_caption->setObjectName(QStringLiteral("lblFrame"));
    connect(m_start, &QPushButton::clicked, this, [this] { m_session->setStreaming(true); });
    connect(m_stop, &QPushButton::clicked, this, [this] { m_session->setStreaming(false); });

    auto* controls = new QHBoxLayout;
    controls->addWidget(m_start);
    controls->addWidget(m_stop);
    controls->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_picture, 1);
    layout->addWidget(m_caption);
    layout->addLayout(controls);
    setSession(nullptr);
}

void LivePane::setSession(CameraSession* session)
{
    if (m_session) {
        m_session->disconnect(this);
        m_session->camera().disconnect(this);
    }
    m_session = session;
    m_picture->setCamera(session ? &session->camera() : nullptr);
    if (session) {
        connect(&session->camera(), &CameraSource::pictureChanged, this, &LivePane::updateCaption);
        connect(session, &CameraSession::streamingChanged, this, &LivePane::updateButtons);
    }
    updateCaption();
    updateButtons();
}

void LivePane::updateCaption()
{
    m_caption->setText(m_session ? describe(m_session->camera()) : QString());
}

void LivePane::updateButtons()
{
    m_start->setEnabled(m_session && !m_session->isStreaming());
    m_stop->setEnabled(m_session && m_session->isStreaming());
}

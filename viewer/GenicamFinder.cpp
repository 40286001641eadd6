#include "GenicamFinder.h"

#include "GenicamSource.h"

#include "genicam/Discovery.h"

#include <QCoreApplication>

namespace {

const QString prefix = QStringLiteral("genicam:");
const QString fakeId = QStringLiteral("genicam:fake");
const char* const supportedVendor = "Brontax";

QString text(const std::string& source)
{
    return QString::fromStdString(source);
}

} // namespace

GenicamFinder::GenicamFinder() = default;

GenicamFinder::~GenicamFinder()
{
    for (std::thread& thread : m_threads)
        thread.join();
}

QVector<CameraEntry> GenicamFinder::findNow()
{
    QVector<CameraEntry> entries;
    for (const genicam::FoundCamera& camera : genicam::findCameras()) {
        entries.append({prefix + text(camera.id), text(camera.vendor + " " + camera.model),
                        tr("%1 %2, serial number %3, at %4 (%5)")
                            .arg(text(camera.vendor), text(camera.model), text(camera.serialNumber),
                                 text(camera.address), text(camera.protocol))});
    }
    return entries;
}

void GenicamFinder::search()
{
    run([this] {
        const QVector<CameraEntry> cameras = findNow();
        tell([this, cameras] { emit found(cameras); });
    });
}

void GenicamFinder::open(const QString& id)
{
    const bool isFake = id == fakeId;
    if (isFake && !m_fake)
        m_fake = genicam::hostFakeCamera();
    if (isFake && !m_fake) {
        emit failed(id, tr("The port of the camera without hardware is taken on this computer."));
        return;
    }
    const std::string address
        = isFake ? genicam::fakeCameraAddress : id.mid(prefix.size()).toStdString();
    const std::string vendor = m_isPresentedAsSupported ? supportedVendor : "";
    run([this, id, address, vendor] {
        std::string reason;
        ArvDevice* const device = genicam::openDevice(address, reason);
        if (!device) {
            tell([=] { emit failed(id, text(reason)); });
            return;
        }
        const auto camera = std::make_shared<GenicamSource>(device, vendor);
        camera->moveToThread(QCoreApplication::instance()->thread());
        tell([=] { emit opened(id, camera); });
    });
}

QString GenicamFinder::idWithoutHardware() const
{
    return fakeId;
}

void GenicamFinder::tell(const std::function<void()>& event)
{
    QMetaObject::invokeMethod(this, event, Qt::QueuedConnection);
}

void GenicamFinder::run(std::function<void()> work)
{
    m_threads.emplace_back(std::move(work));
}

#include "page/FeatureObservation.h"

#include "features/CameraLink.h"
#include "features/SdkValues.h"

#include <QDebug>

#include <utility>

namespace {

void log(const char* text, ZebErrorType result)
{
    if (result != Sdk::success)
        qDebug() << text << static_cast<int>(result) << "\n";
}

} // namespace

ZebErrorType FeatureObservation::start(const QStringList& names,
                                       std::shared_ptr<PluginFeatureObserver> observer)
{
    m_isRunning = true;
    m_isOver = false;
    m_observer = std::move(observer);
    const auto manyReads = m_manager.link()->manyReads();
    const auto found = m_manager.FindAll(names);
    // What is left of an earlier observation is registered again, or waits for the next stop.
    const auto former = std::exchange(m_registrations, found);
    for (const FeatureReader& each : former) {
        if (!this->names().contains(each.name()))
            m_registrations.append(each);
    }
    ZebErrorType result = Sdk::success;
    CameraLink::Milliseconds failing{0};
    for (const FeatureReader& each : found) {
        const auto begin = CameraLink::Clock::now();
        result = each->RegisterObserver(m_observer);
        log("Could not register feature observer. Error code: ", result);
        if (result != Sdk::success)
            failing += CameraLink::since(begin);
        if (failing >= CameraLink::patience)
            break;
    }
    return result;
}

ZebErrorType FeatureObservation::stop()
{
    m_isOver = m_isOver || m_isRunning;
    m_isRunning = false;
    ZebErrorType result = Sdk::success;
    const auto registrations = std::exchange(m_registrations, {});
    for (const FeatureReader& each : registrations) {
        if (!m_manager.link()->mayPart()) {
            m_registrations.append(each);
            continue;
        }
        const auto begin = CameraLink::Clock::now();
        result = each->UnregisterObserver(m_observer);
        m_manager.link()->parted(result, CameraLink::since(begin));
        log("Could not unregister feature observer. Error code: ", result);
        if (result != Sdk::success)
            m_registrations.append(each);
    }
    return result;
}

QStringList FeatureObservation::names() const
{
    QStringList names;
    for (const FeatureReader& each : m_registrations)
        names.append(each.name());
    return names;
}

// The timer, and the observer on the features of a camera that may have gone.

#include "page/BaseTabPluginWidget.h"

#include "features/CameraLink.h"
#include "features/FeatureNames.h"
#include "features/SdkValues.h"

#include <QDebug>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr int refreshIntervalMs = 1000;

} // namespace

void BaseTabPluginWidget::startUpdates(bool markChanged)
{
    refreshTimer->start(refreshIntervalMs);
    if (!m_observing && m_link->isLost())
        m_wasLost = true;
    else if (!m_observing)
        registerObservers(markChanged);
    else if (markChanged)
        markRegistered();
}

void BaseTabPluginWidget::stopUpdates()
{
    refreshTimer->stop();
    // Features that refused to let the observer go are asked once more.
    if (m_observing || !m_registrations.isEmpty())
        unregisterObservers(false);
}

void BaseTabPluginWidget::markRegistered()
{
    for (const Registration& registration : qAsConst(m_registrations))
        noteOrKeep(registration.name);
}

/// Asks a lost camera itself, now and then: an untouched page makes no other call.
bool BaseTabPluginWidget::isCameraLost()
{
    const QStringList names = observedFeatures + QStringList{FeatureNames::deviceVendorName};
    const int first = m_link->questions();
    for (int i = 0; m_link->isDue() && i < names.size(); ++i) {
        if (featureManager->Read(names.at((first + i) % names.size())).askValue())
            break;
    }
    if (m_link->isLost())
        m_wasLost = true;
    return m_link->isLost();
}

/// A camera that is back may have lost the observers, and anything may have changed.
void BaseTabPluginWidget::observeAgain()
{
    m_wasLost = false;
    unregisterObservers(false);
    registerObservers(true);
}

bool BaseTabPluginWidget::hasFeatures() const
{
    if (cameraFeatures && !cameraFeatures->isEmpty())
        return true;
    qDebug() << "Could not get features. Error code: " << static_cast<int>(Sdk::notFound);
    return false;
}

QVector<BaseTabPluginWidget::Registration> BaseTabPluginWidget::findObserved()
{
    QVector<Registration> observed;
    // A camera that calls back may change the viewer's list under the walk.
    const QVector<ZebCPP::FeaturePtr> features = *cameraFeatures;
    for (const ZebCPP::FeaturePtr& feature : features) {
        std::string text;
        if (!feature || ZebFeatureWrapper(feature).GetName(text) != Sdk::success)
            continue;
        const QString name = QString::fromStdString(text);
        if (observedFeatures.contains(name))
            observed.append({feature, name});
    }
    return observed;
}

ZebErrorType BaseTabPluginWidget::registerObservers(bool markChanged)
{
    m_observing = true;
    if (!hasFeatures())
        return Sdk::notFound;
    const ZebCPP::IFeatureObserverPtr target = observer;
    ZebErrorType result = Sdk::success;
    // A registration that the camera reports as failed may have been made all the same.
    m_registrations = findObserved();
    const QVector<Registration> registrations = m_registrations;
    for (const Registration& registration : registrations) {
        result = ZebFeatureWrapper(registration.feature).RegisterObserver(target);
        if (result != Sdk::success)
            qDebug() << "Could not register feature observer. Error code: "
                     << static_cast<int>(result) << "\n";
        if (markChanged)
            noteOrKeep(registration.name);
    }
    return result;
}

ZebErrorType BaseTabPluginWidget::unregisterObservers(bool markChanged)
{
    m_observing = false;
    if (!hasFeatures())
        return Sdk::notFound;
    const ZebCPP::IFeatureObserverPtr target = observer;
    ZebErrorType result = Sdk::success;
    const QVector<Registration> registrations
        = m_registrations.isEmpty() ? findObserved() : std::exchange(m_registrations, {});
    for (const Registration& registration : registrations) {
        result = ZebFeatureWrapper(registration.feature).UnregisterObserver(target);
        if (result != Sdk::success) {
            qDebug() << "Could not unregister feature observer. Error code: "
                     << static_cast<int>(result) << "\n";
            m_registrations.append(registration);
        }
        if (markChanged)
            noteOrKeep(registration.name);
    }
    return result;
}

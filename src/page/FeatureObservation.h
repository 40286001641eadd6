#pragma once

#include "features/FeatureManager.h"
#include "features/PluginFeatureObserver.h"

/// A page's observer on the features of a camera that may have gone: each that was registered is
/// let go, whatever the viewer's list holds by then. A registration that the camera reports as
/// failed may have been made, and one that it refuses to end is ended with the next stop.
class FeatureObservation
{
public:
    explicit FeatureObservation(FeatureManager& manager)
        : m_manager(manager)
    {
    }

    /// Answers the SDK's code of the last feature handled. A lost camera is asked nothing.
    ZebErrorType start(const QStringList& names, std::shared_ptr<PluginFeatureObserver> observer);
    /// Asks until one second has gone into failing calls.
    ZebErrorType stop();

    bool isRunning() const { return m_isRunning; }
    bool isOver() const { return m_isOver; } ///< it was running
    QStringList names() const;               ///< of the features that hold the observer

private:
    FeatureManager& m_manager;
    ZebCPP::IFeatureObserverPtr m_observer;
    QVector<FeatureReader> m_registrations;
    bool m_isRunning = false;
    bool m_isOver = false;
};

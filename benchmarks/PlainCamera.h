#pragma once

#include "features/FeatureManager.h"
#include "simulator/FeatureDescription.h"
#include "simulator/SensorSize.h"

#include <ZebCPP/ZebCPP.h>

#include <QSharedPointer>
#include <QVector>

#include <cstddef>
#include <memory>

/// A camera that answers every call at once from memory: what is left of a measurement is ours.
///
/// It takes its features and their values from a simulated camera, and like it reports to observers
/// only when told to.
class PlainCamera
{
public:
    explicit PlainCamera(const sim::FeatureDescriptions& features);
    ~PlainCamera();

    using Features = QSharedPointer<QVector<ZebCPP::FeaturePtr>>;
    Features features() const { return m_features; }
    FeatureManager::Wrappers wrappers() const;
    ZebCPP::FeaturePtr feature(const char* name) const;

    /// Calls of all operations since the last reset, on any feature.
    std::size_t calls() const;
    void resetCalls();

    /// Tells the observers of a feature, on this thread.
    void notify(const ZebCPP::FeaturePtr& feature);

private:
    Features m_features;
    std::shared_ptr<std::size_t> m_calls;
};

/// A current camera with region pages, filled up to this number of features; no fewer than the
/// camera has by itself.
sim::FeatureDescriptions cameraWith(int features, int regions = 4,
                                    const sim::SensorSize& sensor
                                    = sim::SensorSize::megapixels20());

#pragma once

#include "CameraOptions.h"
#include "FeatureDescription.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace sim {

class Camera;

/// A named kind of camera.
struct Model
{
    std::string name; ///< lower case, for a command line
    SensorSize sensor;
    std::function<FeatureDescriptions(const SensorSize&)> build;
};

const std::vector<Model>& models();
std::vector<std::string> modelNames();

/// Null for an unknown name.
std::unique_ptr<Camera> createCamera(const std::string& modelName,
                                     const CameraOptions& options = {});

} // namespace sim

#include "Model.h"

#include "Camera.h"
#include "models/FeatureBlocks.h"
#include "models/ModelLists.h"

namespace sim {

const std::vector<Model>& models()
{
    static const std::vector<Model> all = [] {
        std::vector<Model> list = standardModels();
        for (const auto& theme : {autoFunctionModels(), multiRegionModels()})
            list.insert(list.end(), theme.begin(), theme.end());
        return list;
    }();
    return all;
}

std::vector<std::string> modelNames()
{
    std::vector<std::string> names;
    for (const Model& model : models())
        names.push_back(model.name);
    return names;
}

std::unique_ptr<Camera> createCamera(const std::string& modelName, const CameraOptions& options)
{
    for (const Model& model : models()) {
        if (model.name != modelName)
            continue;
        const SensorSize size = options.sensor.isEmpty() ? model.sensor : options.sensor;
        return std::make_unique<Camera>(
            joined({model.build(size), fillers("Extra", options.extraFeatures)}), options);
    }
    return nullptr;
}

} // namespace sim

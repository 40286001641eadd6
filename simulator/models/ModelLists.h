#pragma once

#include "Model.h"

namespace sim {

std::vector<Model> standardModels();
std::vector<Model> autoFunctionModels();
std::vector<Model> multiRegionModels();

} // namespace sim

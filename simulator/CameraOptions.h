#pragma once

#include "NotificationSettings.h"
#include "SensorSize.h"

namespace sim {

/// How a model is built and behaves at the start.
struct CameraOptions
{
    SensorSize sensor;   ///< empty: the model's own
    bool rounds = false; ///< takes the nearest legal number instead of refusing
    NotificationSettings notifications;
    int extraFeatures = 0; ///< further features of no meaning, for measurements
};

} // namespace sim

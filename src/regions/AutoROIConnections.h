#pragma once

class AutoRegionCamera;
class AutoROIWidget;

namespace Ui {
class AutoROIWidget;
}

/// Connects what the camera has features for.
void connectForm(AutoROIWidget& page, const Ui::AutoROIWidget& form,
                 const AutoRegionCamera& camera);

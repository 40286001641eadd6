#pragma once

class AutoRegionCamera;
class AutoROIWidget;
class RubberBandLabel;

namespace Ui {
class AutoROIWidget;
}

/// Connects what the camera has features for.
void connectForm(AutoROIWidget& page, const Ui::AutoROIWidget& form,
                 const AutoRegionCamera& camera);
void connectLabel(AutoROIWidget& page, const RubberBandLabel& label);

#pragma once

class AutoRegionCamera;
class AutoRegionView;

namespace Ui {
class AutoROIWidget;
}

/// Titles, captions and fields as the camera's way of telling the region demands; what the camera
/// has no feature for is hidden or disabled.
void adaptForm(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera);

/// Gives the fields the room that their ranges need, before messages and gaps get any.
void fitColumns(const Ui::AutoROIWidget& form);

/// Lets the user edit the region, as far as the camera does.
void enableRegion(const Ui::AutoROIWidget& form, const AutoRegionView& view, bool enabled);

#pragma once

class AutoRegionCamera;
class AutoRegionView;
struct AutoRegion;

namespace Ui {
class AutoROIWidget;
}

/// As the camera's way of telling the region demands; what it lacks is hidden or disabled.
void adaptForm(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera);

/// Gives the fields the room that their ranges need, before messages and gaps get any.
void fitColumns(const Ui::AutoROIWidget& form);

// What is wrong with edges, and with offset and size; the latter answers whether nothing is.
void showEdgeProblems(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera,
                      const AutoRegion& edges);
bool showSizeProblem(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera);

/// Lets the user edit the region, as far as the camera does.
void enableRegion(const Ui::AutoROIWidget& form, AutoRegionView& view, bool enabled);

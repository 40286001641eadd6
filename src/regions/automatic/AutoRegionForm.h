#pragma once

#include <QSignalBlocker>

#include <vector>

class AutoRegionCamera;
class AutoRegionView;
class QObject;

namespace Ui {
class AutoROIWidget;
}

/// Titles, captions and fields as the camera's way of telling the region demands; what the camera
/// has no feature for is hidden or disabled.
void adaptForm(const Ui::AutoROIWidget& form, const AutoRegionCamera& camera);

/// Gives the fields the room that their ranges need, before messages and gaps get any.
void fitColumns(const Ui::AutoROIWidget& form);

/// For as long as the answer lives, what the form shows is not written back.
std::vector<QSignalBlocker> blockFields(const Ui::AutoROIWidget& form);

/// Keeps the wheel from changing fields without focus.
void guardAgainstWheel(const Ui::AutoROIWidget& form, QObject* filter);

/// Lets the user edit the region, as far as the camera does.
void enableRegion(const Ui::AutoROIWidget& form, const AutoRegionView& view, bool enabled);

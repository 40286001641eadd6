#pragma once

#include <QString>

#include <optional>

class FeatureManager;

namespace Ui {
class MultiROIWidget;
}

/// The switch of the multiple regions, their arrangement, and the warning where neither can be
/// used. What the camera does not tell stays as it is shown.
class RegionSettings
{
public:
    /// Both must outlive the object.
    RegionSettings(const Ui::MultiROIWidget& form, FeatureManager& manager);

    bool hasArrangement() const { return m_hasArrangement; }

    /// Empty when the camera did not tell it.
    std::optional<bool> refreshSwitch();
    void writeSwitch(bool enabled);
    /// The arrangement's name.
    std::optional<QString> refreshArrangement();
    void writeArrangement(int index);
    /// Warns alone while the picture is binned or reversed. False when the camera did not tell.
    bool testCompatibility();

private:
    const Ui::MultiROIWidget& m_form;
    FeatureManager& m_manager;
    const bool m_hasArrangement;
};

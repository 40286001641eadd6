#include "multiregion/RegionSettings.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "multiregion/rules/RegionText.h"
#include "ui_MultiROIWidget.h"
#include "widgets/SilentFields.h"

namespace Name = FeatureNames;

RegionSettings::RegionSettings(const Ui::MultiROIWidget& form, FeatureManager& manager)
    : m_form(form)
    , m_manager(manager)
    , m_hasArrangement(manager.HasFeature(Name::multipleRegionArrangement))
{
    if (m_hasArrangement)
        return;
    m_form.cmbMultipleRegionArrangement->addItem(QStringLiteral("Vertical"));
    m_form.cmbMultipleRegionArrangement->setEnabled(false);
}

std::optional<bool> RegionSettings::refreshSwitch()
{
    const Reading<double> enabled
        = m_manager.Read(Name::multipleRegionEnable, Name::multipleRegionsEnable).number();
    if (!enabled.isComplete)
        return std::nullopt;
    const bool isEnabled = enabled.value.value_or(0.0) > 0.0;
    showChecked(m_form.chkMultipleRegionEnable, isEnabled);
    m_form.chkMultipleRegionEnable->setEnabled(enabled.isWritable.value_or(false));
    return isEnabled;
}

void RegionSettings::writeSwitch(bool enabled)
{
    m_manager.SetValue(Name::multipleRegionEnable, Name::multipleRegionsEnable,
                       enabled ? 1.0 : 0.0);
}

std::optional<QString> RegionSettings::refreshArrangement()
{
    QComboBox* const box = m_form.cmbMultipleRegionArrangement;
    if (m_hasArrangement) {
        const Reading<QString> entry
            = m_manager.Read(Name::multipleRegionArrangement).read<QString>(FeatureReader::Value);
        if (!entry.isComplete)
            return std::nullopt;
        const QString text = entry.value.value_or(QString());
        if (!showEntry(box, text)) {
            showEntries(box, m_manager.GetEnumEntries(Name::multipleRegionArrangement), false);
            showEntry(box, text);
        }
    }
    return box->currentText();
}

void RegionSettings::writeArrangement(int index)
{
    m_manager.SetStringValue(Name::multipleRegionArrangement,
                             m_form.cmbMultipleRegionArrangement->itemText(index));
}

bool RegionSettings::testCompatibility()
{
    bool isTold = true;
    const auto valueOf = [this, &isTold](const QString& name) {
        const Reading<double> reading = m_manager.Read(name).number(FeatureReader::Value);
        isTold = isTold && reading.isComplete;
        return reading.value.value_or(0.0);
    };
    const bool isIncompatible = valueOf(Name::binningHorizontal) > 1.0
        || valueOf(Name::binningVertical) > 1.0 || valueOf(Name::reverseX) != 0.0
        || valueOf(Name::reverseY) != 0.0;
    if (!isTold && !isIncompatible)
        return false;
    m_form.lblWarning->setText(
        isIncompatible ? RegionText::tr("Multi ROI widget cannot be used in combination with "
                                        "Binning or ReverseX/Y.")
                       : QString());
    m_form.frameWarning->setVisible(isIncompatible);
    m_form.frame->setVisible(!isIncompatible);
    m_form.grpROI->setVisible(!isIncompatible);
    m_form.tabRegions->setVisible(!isIncompatible);
    return true;
}

#pragma once

#include "multiregion/RegionDisplay.h"
#include "multiregion/rules/ConstraintGroups.h"

#include <QPointer>

#include <vector>

class MultiRubberBandLabel;
class RegionLabelWidget;
class RegionTableWidget;
class RoundButton;

namespace Ui {
class MultiROIWidget;
}

/// The parts of the page that belong to one region each: button, table and label, and its band.
class RegionTabs : public RegionDisplay
{
public:
    /// @p form and @p label must outlive the object; of the label, only its QObject part.
    RegionTabs(const Ui::MultiROIWidget& form, MultiRubberBandLabel* label);

    struct Tab
    {
        QPointer<RoundButton> button;
        RegionTableWidget* table = nullptr;
        RegionLabelWidget* label = nullptr;
    };

    /// Tables and labels follow the sensor area from now on.
    const Tab& add(RegionTableWidget* table, const QColor& color);
    const Tab& tab(int region) const { return m_tabs[static_cast<std::size_t>(region)]; }

    // Of the open tab's table:
    bool isEditing() const;
    void finishEditing();
    /// What it shows beside its region's own features.
    void refreshSettings(const QStringList& names);

    void setMode(const QString& mode);
    void setStreaming(bool streaming);
    /// After every change of a button: which of them may be clicked.
    void updateButtons();
    /// In the colour of its band.
    void showColor(int region, const QColor& color);
    /// A scroll area does not grow with its content: the labels would be cut off.
    void fitLabels();
    QVector<ConstraintGroup> groups() const;

    int count() const override { return static_cast<int>(m_tabs.size()); }
    int current() const override;
    void open(int region) override;
    QString mode() const override { return m_mode; }
    bool isActive(int region) const override;
    void setActive(int region, bool active) override;
    void setChecked(int region, bool checked) override;
    QColor color(int region) const override;
    void setColor(int region, const QColor& color) override;
    bool show(int region, const RegionState& state) override;
    bool refreshTable(int region) override;
    void silence(bool silent) override;
    void announce() override;

private:
    const Ui::MultiROIWidget& m_form;
    const QPointer<MultiRubberBandLabel> m_label;
    std::vector<Tab> m_tabs;
    QString m_mode;
    bool m_isStreaming = false;
};

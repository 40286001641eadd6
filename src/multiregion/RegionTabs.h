#pragma once

#include "multiregion/RegionCamera.h"
#include "multiregion/rules/ConstraintGroups.h"

#include <QColor>
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
class RegionTabs
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

    int count() const { return static_cast<int>(m_tabs.size()); }
    bool has(int region) const { return region >= 0 && region < count(); }

    /// The region whose tab is open; none when there are no tabs.
    int current() const;
    void open(int region);

    // Of the open tab's table:
    bool isEditing() const;
    void finishEditing();

    /// The arrangement's name.
    QString mode() const;
    void setMode(const QString& mode);
    bool isStreaming() const { return m_isStreaming; }
    void setStreaming(bool streaming);
    /// After every change of a button: which of them may be clicked.
    void updateButtons();

    /// As the camera had it when last read; its button may stay checked without a place for it.
    bool isActive(int region) const;
    QVector<bool> active() const;
    QVector<ConstraintGroup> groups() const;
    void setActive(int region, bool active);
    void setChecked(int region, bool checked);
    QColor color(int region) const;
    void setColor(int region, const QColor& color);
    /// In the colour of its band.
    void showColor(int region, const QColor& color);

    QRect geometry(int region) const;
    void show(int region, const RegionState& state);
    /// At once, whatever else is under way.
    void repaint();
    /// Reads the open tab's table, whose region is selected. False when the camera did not tell all
    /// of that.
    bool refreshTable();

    /// The sensor area keeps its signals to itself until announce().
    void silence(bool silent);
    void announce();
    /// A scroll area does not grow with its content: the labels would be cut off.
    void fitLabels();

private:
    const Ui::MultiROIWidget& m_form;
    const QPointer<MultiRubberBandLabel> m_label;
    std::vector<Tab> m_tabs;
    bool m_isStreaming = false;
};

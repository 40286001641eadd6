#include "multiregion/RegionTabs.h"

#include "multiregion/RegionLabelWidget.h"
#include "multiregion/RegionTableWidget.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "multiregion/rules/RegionText.h"
#include "multiregion/rules/ToggleRules.h"
#include "ui_MultiROIWidget.h"
#include "widgets/RoundButton.h"

#include <QSignalBlocker>
#include <QTabBar>

RegionTabs::RegionTabs(const Ui::MultiROIWidget& form, MultiRubberBandLabel* label)
    : m_form(form)
    , m_label(label)
{
    m_form.scrollRegionLabels->viewport()->setAutoFillBackground(false);
    m_form.scrollRegionLabelsContents->setAutoFillBackground(false);
    m_form.verticalLayout_6->setAlignment(Qt::AlignTop);
    m_form.tabRegions->clear();
}

const RegionTabs::Tab& RegionTabs::add(RegionTableWidget* table, const QColor& color)
{
    const int region = count();
    const QString title = RegionText::tr("Region%1").arg(region);
    QTabBar* const bar = m_form.tabRegions->tabBar();
    Tab tab{new RoundButton(region, false, bar), table,
            new RegionLabelWidget(region, QRect(), color, m_form.scrollRegionLabelsContents)};
    tab.button->setObjectName(QStringLiteral("btnRegion%1").arg(region));
    tab.button->setAccessibleName(title);
    table->findChild<QWidget*>(QStringLiteral("tblFeatures"))->setAccessibleName(title);
    tab.label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_form.verticalLayout_6->addWidget(tab.label);
    tab.label->setVisible(false);
    m_form.tabRegions->addTab(table, title);
    bar->setTabButton(region, QTabBar::LeftSide, tab.button);
    if (region > 0)
        QWidget::setTabOrder(m_tabs.back().button, tab.button);
    else
        QWidget::setTabOrder(bar, tab.button);
    m_tabs.push_back(tab);

    using Label = MultiRubberBandLabel;
    QObject::connect(m_label, &Label::constraintsActivated, table,
                     &RegionTableWidget::addConstraints);
    QObject::connect(m_label, &Label::regionRangeChanged, table,
                     &RegionTableWidget::onRegionRangeChanged);
    QObject::connect(m_label, &Label::highlightSelectedRegion, tab.label,
                     &RegionLabelWidget::highlightIfSelected);
    return m_tabs.back();
}

bool RegionTabs::isEditing() const
{
    return has(current()) && tab(current()).table->isEditing();
}

void RegionTabs::finishEditing()
{
    if (has(current()))
        tab(current()).table->finishEditing();
}

QString RegionTabs::mode() const
{
    return m_form.cmbMultipleRegionArrangement->currentText();
}

void RegionTabs::setMode(const QString& mode)
{
    if (m_label)
        m_label->setArrangementMode(mode);
    updateButtons();
}

void RegionTabs::setStreaming(bool streaming)
{
    m_isStreaming = streaming;
    updateButtons();
}

void RegionTabs::updateButtons()
{
    QVector<bool> checked;
    for (const Tab& tab : m_tabs)
        checked << (tab.button && tab.button->isChecked());
    const auto states
        = regionButtonStates(arrangementMode(mode()), active(), checked, m_isStreaming);
    for (int region = 0; region < count(); ++region) {
        if (RoundButton* button = tab(region).button) {
            button->setEnabled(states[region].enabled);
            button->setToolTip(states[region].toolTip);
        }
    }
}

void RegionTabs::showColor(int region, const QColor& color)
{
    tab(region).label->updateColor(region, color);
}

void RegionTabs::fitLabels()
{
    m_form.scrollRegionLabelsContents->layout()->activate();
    m_form.scrollRegionLabels->setMinimumWidth(
        m_form.scrollRegionLabelsContents->sizeHint().width());
}

QVector<bool> RegionTabs::active() const
{
    QVector<bool> result;
    for (int region = 0; region < count(); ++region)
        result << isActive(region);
    return result;
}

QVector<ConstraintGroup> RegionTabs::groups() const
{
    QVector<int> shown;
    for (int region = 0; region < count(); ++region) {
        if (isActive(region))
            shown << region;
    }
    return constraintGroups(arrangementMode(mode()), shown);
}

int RegionTabs::current() const
{
    return m_form.tabRegions->currentIndex();
}

void RegionTabs::open(int region)
{
    m_form.tabRegions->setCurrentIndex(region);
}

bool RegionTabs::isActive(int region) const
{
    return m_label && has(region) && m_label->isRegionShown(region);
}

void RegionTabs::setActive(int region, bool active)
{
    if (m_label)
        m_label->onRegionActivated(region, active);
    setChecked(region, active);
    tab(region).label->setVisible(active);
    fitLabels();
}

void RegionTabs::setChecked(int region, bool checked)
{
    if (RoundButton* button = tab(region).button) {
        const QSignalBlocker blocker(button);
        button->setChecked(checked);
    }
    updateButtons();
}

QColor RegionTabs::color(int region) const
{
    return m_label ? m_label->regionColor(region) : QColor();
}

void RegionTabs::setColor(int region, const QColor& color)
{
    if (m_label)
        m_label->onRegionColorChanged(region, color);
    showColor(region, color);
}

QRect RegionTabs::geometry(int region) const
{
    return m_label ? m_label->regionRectangle(region) : QRect();
}

void RegionTabs::repaint()
{
    m_form.scrollArea->repaint();
}

void RegionTabs::show(int region, const RegionState& state)
{
    RegionLabelWidget* const label = tab(region).label;
    label->setRegionGeometry(state.geometry);
    label->highlightIfSelected(current());
    if (region != current())
        tab(region).table->show(isActive(region), state.geometry);
    if (m_label && state.limits)
        m_label->setRegionLimits(region, *state.limits);
    if (m_label)
        m_label->onRegionGeometryChanged(region, state.geometry);
}

bool RegionTabs::refreshTable()
{
    RegionTableWidget* const table = tab(current()).table;
    table->refresh();
    return table->isEditing() || table->pendingFeatures().isEmpty();
}

void RegionTabs::silence(bool silent)
{
    if (m_label)
        m_label->blockSignals(silent);
}

void RegionTabs::announce()
{
    for (int region = 0; region < count(); ++region) {
        if (isActive(region))
            tab(region).label->highlightIfSelected(current());
    }
    if (m_label)
        m_label->announceRegions();
}

#include "multiregion/MultiROIWidget.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "multiregion/RegionActivation.h"
#include "multiregion/RegionSettings.h"
#include "multiregion/RegionTableWidget.h"
#include "multiregion/RegionTabs.h"
#include "multiregion/RegionWriter.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "ui_MultiROIWidget.h"
#include "widgets/RoundButton.h"
#include "widgets/Theme.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace Name = FeatureNames;

MultiROIWidget::MultiROIWidget(const FeatureList& camera, QWidget* parent)
    : InnerPage(camera, parent)
    , m_regions(featureManager.get())
{
    if (!featureManager->HasFeature(Name::multipleRegionEnable, Name::multipleRegionsEnable)
        || m_regions.count() < 1.0)
        return;
    installTranslator(QStringLiteral("tabextensionimgfmt"));
    // The host of the pages takes the accessible name for the tab's title.
    setAccessibleName(tr("Multi ROI"));
    m_ui = std::make_unique<Ui::MultiROIWidget>();
    m_ui->setupUi(this);
    m_ui->lblWarning->setStyleSheet(regionTextStyle(isDarkMode()));
    m_ui->frameWarning->setStyleSheet(isDarkMode() ? "#frameWarning { background: black }"
                                                   : "#frameWarning { background: white }");

    observedFeatures = Name::multipleRegionSwitches + QStringList{Name::multipleRegionArrangement}
        + Name::pictureGeometry + QStringList{Name::subRegionMode, Name::subRegionStatus}
        + Name::sizeLimits + QStringList{Name::subRegionSelector} + Name::subRegion.mid(2);
    m_settings = std::make_unique<RegionSettings>(*m_ui, *featureManager);
    m_settings->refreshArrangement();
    createLabel();
    createRegions();
    refreshSwitch();
    refreshArrangement();
    m_settings->testCompatibility();
    connectForm();
    m_tabs->fitLabels();
}

MultiROIWidget::~MultiROIWidget()
{
    disconnectChildren(); // senders that are sheltered may be open editors
}

void MultiROIWidget::createLabel()
{
    const QSize sensor = m_regions.readSensorSize().value_or(QSize(0, 0));
    m_label
        = new MultiRubberBandLabel(sensor.width(), sensor.height(), regionDefaultColor(),
                                   m_ui->cmbMultipleRegionArrangement->currentText(), m_ui->grpROI);
    m_label->setAccessibleName(accessibleName());
    m_ui->horizontalLayout->insertWidget(0, m_label, 1);

    using Label = MultiRubberBandLabel;
    connect(m_label, &Label::regionGeometryChanged, this, &MultiROIWidget::saveNewRegionGeometry);
    connect(m_label, &Label::regionColorChanged, this, &MultiROIWidget::onRegionColorChanged);
    connect(m_label, &Label::regionSelected, this, &MultiROIWidget::selectRegionTab);
    connect(m_label, &Label::labelGeometryChanged, this, &MultiROIWidget::onDragAreaResized);
    connect(m_label, &Label::loggingMessage, this, &MultiROIWidget::loggingMessage);
    // What an open editor holds is written and read back before a drag begins.
    connect(m_label, &Label::aboutToDrag, this, [this] { m_tabs->finishEditing(); });
    const auto readSoon = [this] { InnerPage::readSoon({}); };
    connect(m_label, &Label::rubberChangeFinished, this, readSoon);
    connect(m_label, &Label::dragDropped, this, readSoon);
}

void MultiROIWidget::createRegions()
{
    m_tabs = std::make_unique<RegionTabs>(*m_ui, m_label);
    m_writer = std::make_unique<RegionWriter>(m_regions, *m_tabs, *featureManager->link(),
                                              [this] { return hold(); });
    m_activation = std::make_unique<RegionActivation>(
        m_regions, *m_tabs, *m_writer, [this](Question question) { return ask(question); });
    connect(m_writer.get(), &RegionWriter::loggingMessage, this, &MultiROIWidget::loggingMessage);
    connect(m_writer.get(), &RegionWriter::regionColorChanged, this,
            &MultiROIWidget::regionColorChanged);
    connect(m_writer.get(), &RegionWriter::currentRegionChanged, this,
            &MultiROIWidget::currentRegionChanged);
    connect(m_writer.get(), &RegionWriter::regionActivated, this, &MultiROIWidget::regionActivated);

    const int count = std::min(toInt(m_regions.count()), mostRegions);
    const QStringList features = RegionTableWidget::findFeatures(*featureManager, m_tableManager);
    // Reading a region means selecting it on the camera, which is written for a page that is seen
    // only: the first refresh reads them all. These are those of the region that is selected.
    const auto state = m_regions.read(true);
    for (int region = 0; region < count; ++region) {
        const RegionTabs::Tab& tab = m_tabs->add(
            new RegionTableWidget(region, this, features, m_ui->tabRegions), regionDefaultColor());
        connect(tab.button, &RoundButton::toggled, this, &MultiROIWidget::onRegionButtonToggled);
        connect(tab.table, &RegionTableWidget::saveSubRegionFeatureToCamera, this,
                &MultiROIWidget::setFeatureValue);
        connect(tab.table, &RegionTableWidget::loggingMessage, this,
                &MultiROIWidget::loggingMessage);
        connect(tab.table, &RegionTableWidget::cellEditorActive, this,
                &MultiROIWidget::onFeatureEditorActivated);
        if (state)
            m_label->setRegionLimits(region, *state->limits);
    }
    if (count < m_regions.count()) {
        const QString text
            = tr("The camera names %1 regions; the first %2 are shown.")
                  .arg(QString::number(m_regions.count(), 'f', 0), QString::number(count));
        // Nobody listens before the page is built.
        QTimer::singleShot(0, this, [this, text] { m_writer->log(text); });
    }
    m_ui->tabRegions->setMode(ExtendedTabWidget::TabMenu);
    const int selected = m_regions.readSelected().value_or(0);
    m_tabs->open(isRegion(selected) ? selected : 0);
    m_label->selectRegion(m_tabs->current());
}

void MultiROIWidget::connectForm()
{
    connect(observer.get(), &PluginFeatureObserver::setChangedFeature, this,
            [this](const QString& name) {
                if (name == Name::subRegionMode && isVisible())
                    m_writer->watch().reported();
            });
    connect(m_ui->chkMultipleRegionEnable, &QCheckBox::toggled, this,
            &MultiROIWidget::onEnableToggled);
    connect(m_ui->btnLoadDefaults, &QPushButton::clicked, this,
            &MultiROIWidget::loadDefaultConfiguration);
    connect(m_ui->tabRegions, &QTabWidget::currentChanged, this,
            &MultiROIWidget::setSubRegionSelector);
    if (m_settings->hasArrangement())
        connect(m_ui->cmbMultipleRegionArrangement,
                QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &MultiROIWidget::onArrangementModeChanged);
}

bool MultiROIWidget::isRegion(int region) const
{
    return isReady() && m_tabs->has(region);
}

void MultiROIWidget::saveNewRegionGeometry(int regionNo, QRect regionRect)
{
    if (isRegion(regionNo))
        m_writer->save(regionNo, regionRect);
}

void MultiROIWidget::onRegionButtonToggled()
{
    const auto* button = qobject_cast<RoundButton*>(sender());
    if (!button || !isRegion(button->id()))
        return;
    const int region = button->id();
    const bool activate = button->isChecked();
    const QPointer<MultiROIWidget> page(this);
    const auto handling = m_senders.handling(sender());
    m_toggling = std::make_shared<RegionWriter::Call>(*m_writer);
    m_tabs->open(region);
    if (page)
        m_writer->tellCurrentAtOnce(region);
    if (page)
        m_activation->toggle(region, activate);
    if (page)
        m_toggling.reset();
    if (page)
        m_tabs->updateButtons();
}

void MultiROIWidget::onArrangementModeChanged(int index)
{
    if (!isReady() || index < 0)
        return;
    const auto handling = m_senders.handling(sender());
    const RegionWriter::Call call(*m_writer);
    m_settings->writeArrangement(index);
    if (!refreshArrangement())
        readAgain({Name::multipleRegionArrangement});
    // The camera may have moved regions to fit.
    m_writer->readWhole();
}

void MultiROIWidget::loadDefaultConfiguration()
{
    if (isReady())
        m_activation->loadDefaults(regionDefaultColor());
}

void MultiROIWidget::selectRegionTab(int regionNo)
{
    if (!isRegion(regionNo))
        return;
    if (m_tabs->current() == regionNo)
        setSubRegionSelector(regionNo);
    else
        m_tabs->open(regionNo);
}

void MultiROIWidget::camIsStreaming(bool streaming)
{
    if (isReady())
        m_tabs->setStreaming(streaming);
}

void MultiROIWidget::setSubRegionSelector(int regionNo)
{
    if (!isReady() || regionNo < 0) // no tab is left
        return;
    const QPointer<MultiROIWidget> page(this);
    const auto handling = m_senders.handling(sender());
    if (!isRegion(regionNo)) {
        m_writer->select(regionNo); // whether there is such a region is for the camera to say
        return;
    }
    m_tabs->fitLabels();
    m_label->selectRegion(regionNo);
    if (page)
        m_writer->open(regionNo);
}

void MultiROIWidget::setBackgroundImage(std::shared_ptr<QPixmap> image)
{
    if (isReady())
        m_label->setBackgroundImage(std::move(image), m_label->sensorSize(), {});
}

void MultiROIWidget::updateDragArea()
{
    if (isReady())
        refreshSensor();
}

void MultiROIWidget::onDragAreaResized()
{
    if (m_tabs)
        m_tabs->fitLabels();
}

void MultiROIWidget::onRegionColorChanged(int regionNo, QColor newColor)
{
    if (isRegion(regionNo))
        m_tabs->showColor(regionNo, newColor);
}

void MultiROIWidget::setFeatureValue(int regionNo, int, QString featureName, QVariant value)
{
    if (!isRegion(regionNo))
        return;
    const auto handling = m_senders.handling(sender());
    // The camera's notification finds nobody while the page writes.
    if (!Name::subRegion.contains(featureName))
        readAgain({featureName});
    m_writer->writeFeature(sharingRegions(m_tabs->groups(), regionNo, featureName), featureName,
                           value);
}

void MultiROIWidget::onFeatureEditorActivated(bool status)
{
    if (!status)
        readSoon({});
}

/// Many regions are written or read: no refresh interrupts that.
std::shared_ptr<void> MultiROIWidget::hold()
{
    setCursor(Qt::WaitCursor);
    suspendUpdates();
    return {nullptr, [page = QPointer<MultiROIWidget>(this)](void*) {
                if (!page)
                    return;
                page->resumeUpdates(false);
                page->unsetCursor();
            }};
}

/// Asks a question while the page keeps still.
std::optional<Answer> MultiROIWidget::ask(Question question)
{
    const QPointer<MultiROIWidget> page(this);
    m_toggling.reset();
    if (!page)
        return std::nullopt;
    const QString modeBefore = m_tabs->mode();
    const bool wasStreaming = m_tabs->isStreaming();
    const bool wasVisible = isVisible();
    ++m_questions;
    const Answer answer = askUser(question, modeBefore, this);
    if (!page)
        return std::nullopt;
    if (--m_questions == 0 && isVisible())
        readSoon({});
    if (!isReady() || (wasVisible && !isVisible()))
        return std::nullopt;
    // Another client may have arranged the regions anew, which the page has not followed yet.
    refreshArrangement();
    if (!page)
        return std::nullopt;
    const bool isUnchanged = m_tabs->isStreaming() == wasStreaming && m_tabs->mode() == modeBefore;
    return isUnchanged ? std::optional<Answer>(answer) : std::nullopt;
}

void MultiROIWidget::onEnableToggled(bool enabled)
{
    const auto handling = m_senders.handling(sender());
    m_settings->writeSwitch(enabled);
    m_enabled.reset(); // a refused switch is told too
    if (!refreshSwitch())
        readAgain(Name::multipleRegionSwitches);
}

bool MultiROIWidget::isAtWork() const
{
    return isReady() && (m_questions > 0 || m_label->isDragging() || m_tabs->isEditing());
}

QStringList MultiROIWidget::refresh(const Changes& changes)
{
    if (!isReady())
        return {};
    const RegionWriter::Call call(*m_writer);
    QStringList untold;
    const auto take = [&](const QStringList& names, const auto& isTold) {
        if (changes.any(names) && !isTold())
            untold += names;
    };
    take(Name::multipleRegionSwitches, [this] { return refreshSwitch(); });
    take({Name::multipleRegionArrangement}, [this] { return refreshArrangement(); });
    take(Name::pictureGeometry, [this] { return m_settings->testCompatibility(); });
    take({Name::subRegionSelector}, [this] { return followSelector(); });
    const QSize formerSensor = m_label->sensorSize();
    take(Name::sizeLimits, [this] { return refreshSensor(); });
    const bool isSensorNew = m_label->sensorSize() != formerSensor;
    // A page that nobody sees leaves the camera's selector alone.
    if (changes.all && !isVisible())
        readAllNext();
    // The camera may notify of what did not change, also because all regions are read.
    if ((changes.all && isVisible()) || isSensorNew)
        m_writer->readWhole();
    else
        refreshRegions(changes.names);
    return untold;
}

void MultiROIWidget::refreshRegions(const QStringList& names)
{
    const QStringList ofTable = Name::subRegion + Name::multipleRegionSwitches;
    if (Changes{false, names}.any(ofTable + QStringList{Name::multipleRegionArrangement}))
        m_writer->readSelected();
    m_writer->readUntold();
    m_writer->lookIfDue();
}

// Each of the following answers whether the camera has told it.

bool MultiROIWidget::followSelector()
{
    const std::optional<int> region = m_regions.readSelected();
    if (region && isRegion(*region) && region != m_regions.lastSelected()) {
        selectRegionTab(*region);
        m_tabs->setChecked(*region, m_regions.readOn().value_or(m_tabs->isActive(*region)));
    }
    return region.has_value();
}

bool MultiROIWidget::refreshSensor()
{
    const RegionWriter::Call call(*m_writer);
    const std::optional<QSize> sensor = m_regions.readSensorSize();
    if (sensor)
        m_label->setSensorSize(*sensor);
    return sensor.has_value();
}

bool MultiROIWidget::refreshSwitch()
{
    const std::optional<bool> isEnabled = m_settings->refreshSwitch();
    if (isEnabled && std::exchange(m_enabled, isEnabled) != isEnabled)
        m_writer->tell([=] { emit multipleRegionsEnabled(*isEnabled); });
    return isEnabled.has_value();
}

bool MultiROIWidget::refreshArrangement()
{
    const RegionWriter::Call call(*m_writer);
    const std::optional<QString> mode = m_settings->refreshArrangement();
    if (mode)
        m_tabs->setMode(*mode);
    return mode.has_value();
}

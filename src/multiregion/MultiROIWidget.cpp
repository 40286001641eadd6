#include "multiregion/MultiROIWidget.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "features/Reading.h"
#include "multiregion/RegionActivation.h"
#include "multiregion/RegionLabelWidget.h"
#include "multiregion/RegionTableWidget.h"
#include "multiregion/RegionTabs.h"
#include "multiregion/RegionWriter.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "ui_MultiROIWidget.h"
#include "widgets/RoundButton.h"
#include "widgets/SilentFields.h"
#include "widgets/Theme.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace Name = FeatureNames;

namespace {

constexpr int mostRegions = 256;

} // namespace

/// Writing or reading of many regions, which no refresh interrupts.
class MultiROIWidget::Work
{
public:
    explicit Work(MultiROIWidget* page)
        : m_page(page)
    {
        m_page->setCursor(Qt::WaitCursor);
        m_page->suspendUpdates();
    }
    ~Work()
    {
        if (!m_page)
            return;
        m_page->resumeUpdates(false);
        m_page->unsetCursor();
    }
    Q_DISABLE_COPY_MOVE(Work)

private:
    const QPointer<MultiROIWidget> m_page;
};

/// While a child's signal is handled. Qt still works on the child afterwards: it outlives a page
/// that a receiver deletes.
class MultiROIWidget::Sending
{
public:
    explicit Sending(MultiROIWidget* page)
        : m_page(page)
    {
        m_page->m_senders << qobject_cast<QWidget*>(m_page->sender());
    }
    ~Sending()
    {
        if (m_page)
            m_page->m_senders.removeLast();
    }
    Q_DISABLE_COPY_MOVE(Sending)

private:
    const QPointer<MultiROIWidget> m_page;
};

MultiROIWidget::MultiROIWidget(const FeatureList& camera, QWidget* parent)
    : InnerPage(camera, parent)
    , m_regions(featureManager.get())
{
    if (!isSupported())
        return;
    setTitle();
    auto form = std::make_unique<Ui::MultiROIWidget>();
    form->setupUi(this);
    if (installTranslator(QStringLiteral("tabextensionimgfmt"))) {
        setTitle();
        form->retranslateUi(this);
    }
    form->lblWarning->setStyleSheet(regionTextStyle(isDarkMode()));
    m_ui = std::move(form);

    observedFeatures = Name::multipleRegionSwitches + QStringList{Name::multipleRegionArrangement}
        + Name::pictureGeometry + QStringList{Name::subRegionMode, Name::subRegionStatus}
        + Name::sizeLimits + QStringList{Name::subRegionSelector} + Name::subRegion.mid(2);
    if (featureManager->HasFeature(Name::multipleRegionArrangement)) {
        fillComboBox(Name::multipleRegionArrangement, m_ui->cmbMultipleRegionArrangement, false);
    } else {
        m_ui->cmbMultipleRegionArrangement->addItem(QStringLiteral("Vertical"));
        m_ui->cmbMultipleRegionArrangement->setEnabled(false);
    }
    createLabel();
    createRegions();
    refreshSwitch();
    refreshArrangement();
    testCompatibility();
    connectForm();
    onDragAreaResized();
}

MultiROIWidget::~MultiROIWidget()
{
    if (!m_ui)
        return;
    // A closing editor would report to a page half gone.
    const QList<QWidget*> children = findChildren<QWidget*>();
    for (QWidget* child : children)
        child->disconnect(this);
    observer->disconnect(this);
    for (const QPointer<QWidget>& sender : qAsConst(m_senders)) {
        if (!sender)
            continue;
        sender->setParent(nullptr);
        sender->deleteLater();
    }
}

bool MultiROIWidget::isSupported() const
{
    return featureManager->HasFeature(Name::multipleRegionEnable, Name::multipleRegionsEnable)
        && m_regions.count() >= 1.0;
}

void MultiROIWidget::setTitle()
{
    // The host of the pages takes the accessible name for the tab's title.
    setAccessibleName(tr("Multi ROI"));
}

void MultiROIWidget::createLabel()
{
    m_sensorSize = m_regions.readSensorSize().value_or(QSize(0, 0));
    m_label = new MultiRubberBandLabel(
        m_sensorSize.width(), m_sensorSize.height(), regionDefaultColor(),
        m_ui->cmbMultipleRegionArrangement->currentText(), m_ui->grpROI);
    m_ui->horizontalLayout->insertWidget(0, m_label, 1);

    using Label = MultiRubberBandLabel;
    connect(m_label, &Label::regionGeometryChanged, this, &MultiROIWidget::saveNewRegionGeometry);
    connect(m_label, &Label::regionColorChanged, this, &MultiROIWidget::onRegionColorChanged);
    connect(m_label, &Label::regionSelected, this, &MultiROIWidget::selectRegionTab);
    connect(m_label, &Label::labelGeometryChanged, this, &MultiROIWidget::onDragAreaResized);
    connect(m_label, &Label::loggingMessage, this, &MultiROIWidget::loggingMessage);
    // What an open editor holds is written and read back before a drag begins.
    connect(m_label, &Label::aboutToDrag, this, [this] {
        if (RegionTableWidget* const table = m_tabs->currentTable())
            table->finishEditing();
    });
    const auto readSoon = [this] { InnerPage::readSoon({}); };
    connect(m_label, &Label::rubberChangeFinished, this, readSoon);
    connect(m_label, &Label::dragDropped, this, readSoon);
}

void MultiROIWidget::createRegions()
{
    m_tabs = std::make_unique<RegionTabs>(*m_ui, m_label);
    m_writer = std::make_unique<RegionWriter>(m_regions, *m_tabs, *featureManager->link(),
                                              [this] { return std::make_shared<Work>(this); });
    m_activation = std::make_unique<RegionActivation>(
        m_regions, *m_tabs, *m_writer, [this](Question question) { return ask(question); });
    connect(m_writer.get(), &RegionWriter::loggingMessage, this, &MultiROIWidget::loggingMessage);
    connect(m_writer.get(), &RegionWriter::regionColorChanged, this,
            &MultiROIWidget::regionColorChanged);
    connect(m_writer.get(), &RegionWriter::currentRegionChanged, this,
            &MultiROIWidget::currentRegionChanged);
    connect(m_writer.get(), &RegionWriter::regionActivated, this, &MultiROIWidget::regionActivated);

    if (m_regions.count() > mostRegions) {
        const QString text
            = tr("The camera names %1 regions; the first %2 are shown.")
                  .arg(QString::number(m_regions.count(), 'f', 0), QString::number(mostRegions));
        // Nobody listens before the page is built.
        QTimer::singleShot(0, this, [this, text] { m_writer->log(text); });
    }
    const int count = std::min(toInt(m_regions.count()), mostRegions);
    const QStringList features = findTableFeatures();
    // Reading a region means selecting it on the camera, which is written for a page that is seen
    // only: the first refresh reads them all. These are those of the region that is selected.
    const auto state = m_regions.read();
    m_tabs->reserve(count);
    for (int region = 0; region < count; ++region) {
        m_tabs->add(new RegionTableWidget(region, this, features, m_ui->tabRegions),
                    tr("Region%1").arg(region), regionDefaultColor());
        connectRegion(region);
        if (state)
            m_label->setRegionLimits(region, state->limits);
    }
    m_ui->tabRegions->setMode(ExtendedTabWidget::TabMenu);
    const int selected = m_regions.readSelected().value_or(0);
    m_tabs->open(isRegion(selected) ? selected : 0);
    m_label->selectRegion(m_tabs->current());
}

void MultiROIWidget::connectRegion(int region)
{
    const RegionTabs::Tab& tab = m_tabs->tab(region);
    using Table = RegionTableWidget;
    connect(tab.button, &RoundButton::toggled, this, &MultiROIWidget::onRegionButtonToggled);
    connect(tab.table, &Table::saveSubRegionFeatureToCamera, this,
            &MultiROIWidget::setFeatureValue);
    connect(tab.table, &Table::loggingMessage, this, &MultiROIWidget::loggingMessage);
    connect(tab.table, &Table::cellEditorActive, this, &MultiROIWidget::onFeatureEditorActivated);
    connect(m_label, &MultiRubberBandLabel::constraintsActivated, tab.table,
            &Table::addConstraints);
    connect(m_label, &MultiRubberBandLabel::regionRangeChanged, tab.table,
            &Table::onRegionRangeChanged);
    connect(m_label, &MultiRubberBandLabel::highlightSelectedRegion, tab.label,
            &RegionLabelWidget::highlightIfSelected);
}

/// What the camera tells of its regions; cameras of older generations keep some of it elsewhere.
///
/// A feature is looked up by walking a list, by each table for each of its rows: the tables get a
/// short one.
QStringList MultiROIWidget::findTableFeatures()
{
    const QString category = QStringLiteral("/ImageFormatControl/MultipleRegion");
    const auto wrappers = FeatureManager::Wrappers::create();
    QStringList features;
    for (const ZebFeatureWrapperPtr& wrapper : *featureManager->features()) {
        FeatureReader reader(wrapper, {}, featureManager->link(), true);
        const QString name = reader.text(&ZebFeatureWrapper::GetName);
        const bool isListed = !name.contains(QLatin1String("Selector"))
            && reader.text(&ZebFeatureWrapper::GetCategory) == category;
        if (isListed)
            features << name;
        if (isListed || Name::subRegion.contains(name))
            wrappers->append(wrapper);
    }
    m_tableManager = std::make_unique<FeatureManager>(wrappers, featureManager->link());
    for (const QString& older : {Name::offsetX, Name::width}) {
        if (!featureManager->HasFeature(QStringLiteral("SubRegion") + older)
            && featureManager->HasFeature(older) && !features.contains(older))
            features << older;
    }
    return features;
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
    if (featureManager->HasFeature(Name::multipleRegionArrangement))
        connect(m_ui->cmbMultipleRegionArrangement,
                QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &MultiROIWidget::onArrangementModeChanged);
}

bool MultiROIWidget::isReady() const
{
    return m_ui && m_label;
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
    const Sending sending(this);
    m_tabs->open(region);
    if (page)
        m_writer->tellCurrent(region);
    if (page)
        m_activation->toggle(region, activate);
    if (page)
        m_tabs->updateButtons();
}

void MultiROIWidget::onArrangementModeChanged(int index)
{
    if (!isReady() || index < 0)
        return;
    const Sending sending(this);
    featureManager->SetStringValue(Name::multipleRegionArrangement,
                                   m_ui->cmbMultipleRegionArrangement->itemText(index));
    refreshArrangement();
    // The camera may have moved regions to fit.
    m_writer->readAll();
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
    m_streaming = streaming;
    if (isReady())
        m_tabs->setStreaming(streaming);
}

void MultiROIWidget::setSubRegionSelector(int regionNo)
{
    if (!isReady() || regionNo < 0) // no tab is left
        return;
    const Sending sending(this);
    const SignalQueue::Call call(m_writer->queue());
    if (!isRegion(regionNo)) {
        m_writer->select(regionNo); // whether there is such a region is for the camera to say
        return;
    }
    m_label->selectRegion(regionNo);
    m_writer->open(regionNo);
    onDragAreaResized();
}

void MultiROIWidget::setBackgroundImage(std::shared_ptr<QPixmap> image)
{
    if (isReady())
        m_label->setBackgroundImage(std::move(image), m_sensorSize, {});
}

void MultiROIWidget::updateDragArea()
{
    if (isReady() && readNewSensor().value_or(false))
        m_label->setSensorSize(m_sensorSize);
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
    const Sending sending(this);
    m_writer->setFeature(sharingRegions(m_tabs->groups(), regionNo, featureName), featureName,
                         value);
}

void MultiROIWidget::onFeatureEditorActivated(bool status)
{
    if (!status)
        readSoon({});
}

/// Asks a question while the page keeps still.
std::optional<Answer> MultiROIWidget::ask(Question question)
{
    const QPointer<MultiROIWidget> page(this);
    const QString modeBefore = m_tabs->mode();
    const bool wasStreaming = m_streaming;
    const bool wasVisible = isVisible();
    Answer answer;
    {
        const Busy stillness = busy();
        answer = askUser(question, modeBefore, this);
    }
    if (!page || !isReady() || (wasVisible && !isVisible()))
        return std::nullopt;
    // Another client may have arranged the regions anew, which the page has not followed yet.
    refreshArrangement();
    const bool isUnchanged = m_streaming == wasStreaming && m_tabs->mode() == modeBefore;
    return isUnchanged ? std::optional<Answer>(answer) : std::nullopt;
}

void MultiROIWidget::onEnableToggled(bool enabled)
{
    const Sending sending(this);
    featureManager->SetValue(Name::multipleRegionEnable, Name::multipleRegionsEnable,
                             enabled ? 1.0 : 0.0);
    m_enabled.reset(); // a refused switch is told too
    if (!refreshSwitch())
        readNext(Name::multipleRegionSwitches);
}

bool MultiROIWidget::isAtWork() const
{
    if (!isReady())
        return false;
    const RegionTableWidget* const table = m_tabs->currentTable();
    return m_label->isDragging() || (table && table->isEditing());
}

Changes MultiROIWidget::refresh(const Changes& changes)
{
    if (!isReady())
        return {};
    const SignalQueue::Call call(m_writer->queue());
    Changes untold;
    const auto readAgainUnless = [&untold](bool isTold, const QStringList& names) {
        if (!isTold)
            untold.names += names;
    };
    if (changes.any(Name::multipleRegionSwitches))
        readAgainUnless(refreshSwitch(), Name::multipleRegionSwitches);
    if (changes.any({Name::multipleRegionArrangement}))
        readAgainUnless(refreshArrangement(), {Name::multipleRegionArrangement});
    if (changes.any(Name::pictureGeometry))
        readAgainUnless(testCompatibility(), Name::pictureGeometry);
    if (changes.any({Name::subRegionSelector}))
        followSelector();
    std::optional<bool> isSensorNew = false;
    if (changes.any(Name::sizeLimits))
        isSensorNew = readNewSensor();
    readAgainUnless(isSensorNew.has_value(), Name::sizeLimits);
    if (isSensorNew.value_or(false))
        m_label->setSensorSize(m_sensorSize);
    // A page that nobody sees leaves the camera's selector alone.
    untold.all = changes.all && !isVisible();
    // The camera may notify of what did not change, also because all regions are read.
    if ((changes.all && isVisible()) || isSensorNew.value_or(false))
        m_writer->readAll();
    else
        refreshRegions(changes.names);
    return untold;
}

void MultiROIWidget::refreshRegions(const QStringList& names)
{
    const Changes changes{false, names};
    QStringList common;
    for (const QString& name :
         Name::multipleRegionSwitches + QStringList{Name::multipleRegionArrangement}) {
        if (names.contains(name))
            common << name;
    }
    if (RegionTableWidget* const table = m_tabs->currentTable())
        table->updateFeatures(common); // what it shows beside its region's own features
    if (changes.any(Name::subRegion))
        m_writer->readSelected(names.contains(Name::subRegionMode));
    m_writer->readUntold();
    m_writer->lookIfDue();
}

void MultiROIWidget::followSelector()
{
    const std::optional<int> region = m_regions.readSelected();
    if (!region || !isRegion(*region) || region == m_regions.lastSelected())
        return;
    selectRegionTab(*region);
    m_tabs->setChecked(*region, m_regions.readOn().value_or(m_tabs->isActive(*region)));
}

// Each of the following answers whether the camera has told all of it. What it does not tell stays
// as it is shown.

bool MultiROIWidget::refreshSwitch()
{
    const Reading<double> enabled
        = readNumber(*featureManager, Name::multipleRegionEnable, Name::multipleRegionsEnable);
    if (!enabled.isComplete)
        return false;
    const bool isEnabled = enabled.value.value_or(0.0) > 0.0;
    showChecked(m_ui->chkMultipleRegionEnable, isEnabled);
    m_ui->chkMultipleRegionEnable->setEnabled(enabled.isWritable);
    if (std::exchange(m_enabled, isEnabled) != isEnabled)
        m_writer->queue().add([this, isEnabled] { emit multipleRegionsEnabled(isEnabled); });
    return true;
}

bool MultiROIWidget::refreshArrangement()
{
    const Reading<QString> entry = readText(*featureManager, Name::multipleRegionArrangement);
    if (!entry.isComplete)
        return false;
    QComboBox* const box = m_ui->cmbMultipleRegionArrangement;
    if (entry.exists && !showEntry(box, entry.value.value_or(QString())))
        fillComboBox(Name::multipleRegionArrangement, box, false);
    m_tabs->setMode(box->currentText());
    return true;
}

bool MultiROIWidget::testCompatibility()
{
    bool isTold = true;
    const auto valueOf = [this, &isTold](const QString& name) {
        const Reading<double> reading = featureManager->Read(name).number(FeatureReader::Value);
        isTold = isTold && reading.isComplete;
        return reading.value.value_or(0.0);
    };
    const bool isIncompatible = valueOf(Name::binningHorizontal) > 1.0
        || valueOf(Name::binningVertical) > 1.0 || valueOf(Name::reverseX) != 0.0
        || valueOf(Name::reverseY) != 0.0;
    if (!isTold && !isIncompatible)
        return false;
    m_ui->lblWarning->setText(isIncompatible
                                  ? tr("Multi ROI widget cannot be used in combination with "
                                       "Binning or ReverseX/Y.")
                                  : QString());
    m_ui->frameWarning->setVisible(isIncompatible);
    m_ui->frame->setVisible(!isIncompatible);
    m_ui->grpROI->setVisible(!isIncompatible);
    m_ui->tabRegions->setVisible(!isIncompatible);
    return true;
}

std::optional<bool> MultiROIWidget::readNewSensor()
{
    const std::optional<QSize> size = m_regions.readSensorSize();
    if (!size)
        return std::nullopt;
    return std::exchange(m_sensorSize, *size) != *size;
}

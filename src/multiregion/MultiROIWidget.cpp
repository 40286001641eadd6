#include "MultiROIWidget.h"

#include "MultiRegionNames.h"
#include "MultiRubberBandLabel.h"
#include "RegionLabelWidget.h"
#include "RegionTableWidget.h"
#include "features/FeatureReading.h"
#include "features/NumberConversion.h"
#include "ui_MultiROIWidget.h"
#include "widgets/RoundButton.h"
#include "widgets/TextColors.h"

#include <QSignalBlocker>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <mutex>
#include <utility>

namespace Name = MultiRegionNames;

namespace {

constexpr int mostRegions = 256;

/// The axis on which a feature places a region.
std::optional<Qt::Orientation> axisOf(const QString& feature)
{
    if (feature.endsWith(QLatin1String("OffsetX")) || feature.endsWith(QLatin1String("Width")))
        return Qt::Horizontal;
    if (feature.endsWith(QLatin1String("OffsetY")) || feature.endsWith(QLatin1String("Height")))
        return Qt::Vertical;
    return std::nullopt;
}

} // namespace

MultiROIWidget::Work::Work(MultiROIWidget* page)
    : m_page(page)
{
    m_page->m_loading = true;
    m_page->setCursor(Qt::WaitCursor);
    m_page->suspendUpdates();
}

MultiROIWidget::Work::~Work()
{
    if (!m_page)
        return;
    m_page->resumeUpdates(false);
    m_page->m_loading = false;
    m_page->unsetCursor();
}

MultiROIWidget::MultiROIWidget(const FeatureList& camera, QWidget* parent)
    : BaseTabPluginWidget(camera, parent)
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

    observedFeatures = Name::switchNames + QStringList{Name::arrangement} + Name::compatibilityNames
        + QStringList{Name::regionMode, Name::status} + Name::sensorNames
        + QStringList{Name::selector} + Name::regionNames.mid(2);
    if (featureManager->HasFeature(Name::arrangement)) {
        fillComboBox(Name::arrangement, m_ui->cmbMultipleRegionArrangement, false);
    } else {
        m_ui->cmbMultipleRegionArrangement->addItem(QStringLiteral("Vertical"));
        m_ui->cmbMultipleRegionArrangement->setEnabled(false);
    }
    createLabel();
    createRegions();
    connectForm();
    refreshSwitch();
    testCompatibility();
    updateButtons();
    onDragAreaResized();
}

MultiROIWidget::~MultiROIWidget()
{
    // A closing editor would report to a page half gone.
    if (!m_ui)
        return;
    for (const RegionTab& tab : m_tabs) {
        tab.table->disconnect(this);
        if (tab.button)
            tab.button->disconnect(this);
    }
    m_label->disconnect(this);
    m_ui->tabRegions->disconnect(this);
    m_ui->chkMultipleRegionEnable->disconnect(this);
    m_ui->cmbMultipleRegionArrangement->disconnect(this);
    observer->disconnect(this);
    // Qt still works on a button after its signal.
    if (m_toggledButton)
        m_toggledButton->setParent(nullptr);
}

bool MultiROIWidget::isSupported() const
{
    return featureManager->HasFeature(Name::enable, Name::otherEnable) && m_regions.count() >= 1.0;
}

void MultiROIWidget::setTitle()
{
    // The host of the pages takes the accessible name for the tab's title.
    setAccessibleName(tr("Multi ROI"));
}

void MultiROIWidget::createLabel()
{
    m_sensorSize = m_regions.sensorSize();
    m_label = new MultiRubberBandLabel(m_sensorSize.width(), m_sensorSize.height(),
                                       regionDefaultColor(), mode(), m_ui->grpROI);
    m_ui->horizontalLayout->insertWidget(0, m_label, 1);

    using Label = MultiRubberBandLabel;
    connect(m_label, &Label::regionGeometryChanged, this, &MultiROIWidget::saveNewRegionGeometry);
    connect(m_label, &Label::regionColorChanged, this, &MultiROIWidget::onRegionColorChanged);
    connect(m_label, &Label::regionSelected, this, &MultiROIWidget::selectRegionTab);
    connect(m_label, &Label::labelGeometryChanged, this, &MultiROIWidget::onDragAreaResized);
    connect(m_label, &Label::loggingMessage, this, &MultiROIWidget::loggingMessage);
    connect(m_label, &Label::rubberChangeFinished, this, &MultiROIWidget::refreshPendingSoon);
    connect(m_label, &Label::rubberChangeDropped, this, &MultiROIWidget::refreshPendingSoon);
    // The buttons' rules ask the label which regions are active.
    connect(this, &MultiROIWidget::regionActivated, m_label, &Label::onRegionActivated);
    connect(this, &MultiROIWidget::regionActivated, this, &MultiROIWidget::onRegionActivated);
    connect(this, &MultiROIWidget::regionColorChanged, m_label, &Label::onRegionColorChanged);
}

void MultiROIWidget::createRegions()
{
    const double count = m_regions.count();
    if (count > mostRegions) {
        const QString text = tr("The camera names %1 regions; the first %2 are shown.")
                                 .arg(QString::number(count, 'f', 0), QString::number(mostRegions));
        // Nobody listens before the page is built.
        QTimer::singleShot(0, this, [this, text] { log(text); });
    }
    m_ui->scrollRegionLabels->viewport()->setAutoFillBackground(false);
    m_ui->scrollRegionLabelsContents->setAutoFillBackground(false);
    m_ui->verticalLayout_6->setAlignment(Qt::AlignTop);
    m_ui->tabRegions->clear();
    const int selected = m_regions.selected();
    const QStringList features = findTableFeatures();
    const RegionSizeLimits limits = m_regions.limits();
    m_tabs.reserve(mostRegions);
    for (int region = 0; region < std::min(toInt(count), mostRegions); ++region)
        createRegion(region, features, limits);
    m_ui->tabRegions->setCurrentIndex(isRegion(selected) ? selected : 0);
    m_label->selectRegion(m_ui->tabRegions->currentIndex());
}

/// Reading a region means selecting it on the camera, which is written for a page that is seen
/// only: the first refresh reads them all.
void MultiROIWidget::createRegion(int region, const QStringList& features,
                                  const RegionSizeLimits& limits)
{
    const QString title = tr("Region%1").arg(region);

    RegionTab tab;
    tab.table = new RegionTableWidget(region, this, features, m_ui->tabRegions);
    tab.label = new RegionLabelWidget(region, QRect(), regionDefaultColor(),
                                      m_ui->scrollRegionLabelsContents);
    tab.button = new RoundButton(region, false, m_ui->tabRegions->tabBar());
    tab.button->setObjectName(QStringLiteral("btnRegion%1").arg(region));
    tab.button->setAccessibleName(title);
    tab.label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_ui->verticalLayout_6->addWidget(tab.label);
    tab.label->setVisible(false);
    m_ui->tabRegions->addTab(tab.table, title);
    m_ui->tabRegions->tabBar()->setTabButton(region, QTabBar::LeftSide, tab.button);
    m_tabs.push_back(tab);

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
    connect(this, &MultiROIWidget::regionColorChanged, tab.label, &RegionLabelWidget::updateColor);

    m_label->setRegionLimits(region, limits);
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
    const QVector<ZebCPP::FeaturePtr> list = *cameraFeatures;
    for (const ZebCPP::FeaturePtr& feature : list) {
        const auto wrapper = std::make_shared<ZebFeatureWrapper>(feature);
        const QString name = FeatureReading::readText(*wrapper, &ZebFeatureWrapper::GetName);
        const bool isListed = !name.contains(QLatin1String("Selector"))
            && FeatureReading::readText(*wrapper, &ZebFeatureWrapper::GetCategory) == category;
        if (isListed)
            features << name;
        if (isListed || Name::regionNames.contains(name))
            wrappers->append(wrapper);
    }
    m_tableManager = std::make_unique<FeatureManager>(wrappers);
    for (const QString& older : {Name::olderOffsetX, Name::olderWidth}) {
        if (!featureManager->HasFeature(QStringLiteral("SubRegion") + older)
            && featureManager->HasFeature(older) && !features.contains(older))
            features << older;
    }
    return features;
}

void MultiROIWidget::connectForm()
{
    connect(observer.get(), &PluginFeatureObserver::setChangedFeature, this,
            &MultiROIWidget::noteMode);
    connect(m_ui->chkMultipleRegionEnable, &QCheckBox::toggled, this,
            &MultiROIWidget::onEnableToggled);
    connect(m_ui->btnLoadDefaults, &QPushButton::clicked, this,
            &MultiROIWidget::loadDefaultConfiguration);
    connect(m_ui->tabRegions, &QTabWidget::currentChanged, this,
            &MultiROIWidget::setSubRegionSelector);
    if (featureManager->HasFeature(Name::arrangement))
        connect(m_ui->cmbMultipleRegionArrangement,
                QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &MultiROIWidget::onArrangementModeChanged);
}

void MultiROIWidget::saveNewRegionGeometry(int regionNo, QRect regionRect)
{
    if (!isRegion(regionNo))
        return;
    // The sizes of the region selected until now: the camera is written in the order they give.
    const QSize former = m_regions.geometry().size();
    const QPointer<MultiROIWidget> page(this);
    if (!select(regionNo)) {
        refreshAllRegions();
        if (page)
            emit currentRegionChanged(regionNo);
        return;
    }
    const QSize own = m_regions.geometry().size();
    m_regions.writeGeometry(regionRect, former);
    if (!regionRect.isNull()) {
        // In the order that suits another region the camera may have cut off what fits.
        const QRect written = m_regions.geometry();
        if (own != former && written != regionRect)
            m_regions.writeGeometry(regionRect, written.size());
        m_regions.switchOn(true);
        // The neighbours test against what the camera made of it.
        updateRegion(regionNo);
        emit regionActivated(regionNo, true);
    }
    if (page)
        refreshAllRegions();
    if (page)
        emit currentRegionChanged(regionNo);
}

void MultiROIWidget::onArrangementModeChanged(int index)
{
    if (!m_ui || index < 0)
        return;
    featureManager->SetStringValue(Name::arrangement,
                                   m_ui->cmbMultipleRegionArrangement->itemText(index));
    refreshArrangement();
}

void MultiROIWidget::selectRegionTab(int regionNo)
{
    if (!isRegion(regionNo))
        return;
    if (m_ui->tabRegions->currentIndex() == regionNo)
        setSubRegionSelector(regionNo);
    else
        m_ui->tabRegions->setCurrentIndex(regionNo);
}

void MultiROIWidget::camIsStreaming(bool streaming)
{
    m_streaming = streaming;
    if (m_ui)
        updateButtons();
}

void MultiROIWidget::setSubRegionSelector(int regionNo)
{
    if (!m_label || regionNo < 0) // no tab is left
        return;
    if (!isRegion(regionNo)) {
        select(regionNo); // whether there is such a region is for the camera to say
        return;
    }
    m_label->selectRegion(regionNo);
    if (select(regionNo) && !m_loading)
        m_tabs[static_cast<std::size_t>(regionNo)].table->refresh();
    onDragAreaResized();
}

void MultiROIWidget::setBackgroundImage(std::shared_ptr<QPixmap> image)
{
    if (m_label)
        m_label->setBackgroundImage(std::move(image), m_regions.sensorSize(), {});
}

void MultiROIWidget::updateDragArea()
{
    if (!m_label)
        return;
    m_sensorSize = m_regions.sensorSize();
    m_label->setSensorSize(m_sensorSize);
}

/// A scroll area does not grow with its content: the labels would be cut off.
void MultiROIWidget::onDragAreaResized()
{
    if (!m_ui)
        return;
    m_ui->scrollRegionLabelsContents->layout()->activate();
    m_ui->scrollRegionLabels->setMinimumWidth(m_ui->scrollRegionLabelsContents->sizeHint().width());
}

void MultiROIWidget::onRegionColorChanged(int regionNo, QColor newColor)
{
    if (isRegion(regionNo))
        m_tabs[static_cast<std::size_t>(regionNo)].label->updateColor(regionNo, newColor);
}

void MultiROIWidget::setFeatureValue(int regionNo, int masterRegion, QString featureName,
                                     QVariant value)
{
    if (!isRegion(regionNo))
        return;
    QVector<int> regions;
    for (const int region : {masterRegion, regionNo}) {
        if (!isRegion(region))
            continue;
        if (const auto axis = axisOf(featureName))
            regions += m_label->sharingRegions(region, *axis);
        regions << region;
    }
    for (int i = 0; i < regions.size(); ++i) {
        const int region = regions[i];
        if (regions.indexOf(region) < i)
            continue;
        if (!select(region) || !featureManager->SetVariantValue(featureName, value))
            log(tr("SubRegion: %1, Saving feature '%2' to value=%3 failed.")
                    .arg(QString::number(region), featureName, value.toString()));
    }
    refreshAllRegions();
}

void MultiROIWidget::onFeatureEditorActivated(bool status)
{
    m_editorActive = status;
    if (!status)
        refreshPendingSoon();
}

bool MultiROIWidget::select(int region)
{
    QString failure;
    {
        const std::unique_lock<QMutex> lock(m_selectorLock, std::try_to_lock);
        if (!lock)
            return false;
        const ModeReports::Selecting selecting(m_modeReports);
        failure = m_regions.select(region);
        if (failure.isEmpty())
            m_selectedByPage = region;
    }
    log(failure);
    return failure.isEmpty();
}

void MultiROIWidget::log(const QString& text)
{
    if (!text.isEmpty())
        emit loggingMessage(ZebViewerLogMultiRegion, text);
}

/// Shows what the camera tells of the region, which is selected.
void MultiROIWidget::updateRegion(int region)
{
    const QRect geometry = m_regions.geometry();
    const RegionTab& tab = m_tabs[static_cast<std::size_t>(region)];
    tab.table->refresh();
    tab.label->setRegionGeometry(geometry);
    tab.label->highlightIfSelected(m_ui->tabRegions->currentIndex());
    m_label->setRegionLimits(region, m_regions.limits());
    m_label->onRegionGeometryChanged(region, geometry);
}

void MultiROIWidget::onRegionActivated(int regionNo, bool active)
{
    if (!isRegion(regionNo))
        return;
    setButton(regionNo, active);
    m_tabs[static_cast<std::size_t>(regionNo)].label->setVisible(active);
    onDragAreaResized();
}

QString MultiROIWidget::mode() const
{
    return m_ui ? m_ui->cmbMultipleRegionArrangement->currentText() : QString();
}

void MultiROIWidget::onPaletteChanged(QEvent*) { }

void MultiROIWidget::onEnableToggled(bool enabled)
{
    featureManager->SetValue(Name::enable, Name::otherEnable, enabled ? 1.0 : 0.0);
    m_enabled.reset(); // a refused switch is told too
    refreshSwitch();
}

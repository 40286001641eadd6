// The page's parts and their connections.

#include "multiregion/MultiROIWidget.h"

#include "features/FeatureNames.h"
#include "features/FeatureReading.h"
#include "features/NumberConversion.h"
#include "multiregion/RegionLabelWidget.h"
#include "multiregion/RegionTableWidget.h"
#include "multiregion/label/MultiRubberBandLabel.h"
#include "ui_MultiROIWidget.h"
#include "widgets/RoundButton.h"
#include "widgets/Theme.h"

#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace Name = FeatureNames;

namespace {

constexpr int mostRegions = 256;

} // namespace

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
    connect(m_label, &Label::dragDropped, this, &MultiROIWidget::refreshPendingSoon);
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
    const QVector<ZebFeatureWrapperPtr> list = *featureManager->features();
    for (const ZebFeatureWrapperPtr& wrapper : list) {
        const QString name = FeatureReading::readText(*wrapper, &ZebFeatureWrapper::GetName);
        const bool isListed = !name.contains(QLatin1String("Selector"))
            && FeatureReading::readText(*wrapper, &ZebFeatureWrapper::GetCategory) == category;
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
            &MultiROIWidget::noteMode);
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

#include "regions/AOIWidget.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "regions/image/RegionAxis.h"
#include "regions/image/RegionConsistency.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AOIWidget.h"
#include "widgets/Theme.h"

#include <QLabel>

// The page's parts and their connections.

namespace {

constexpr QColor regionColor(0, 100, 255, 255);

} // namespace

AOIWidget::AOIWidget(const FeatureList& camera, QWidget* parent)
    : InnerPage(camera, parent)
{
    if (!featureManager->HasFeature(FeatureNames::height)
        || !featureManager->HasFeature(FeatureNames::width))
        return;

    // The module's coloured texts count on their style sheets from the first page on.
    darkModeTextStyle();
    lightModeTextStyle();

    m_ui = std::make_unique<Ui::AOIWidget>();
    m_ui->setupUi(this);
    setTitle();
    if (!accessibleName().isEmpty() && installTranslator(QStringLiteral("tabextensionaoi"))) {
        m_ui->retranslateUi(this);
        setTitle();
    }
    observedFeatures << FeatureNames::offsetX << FeatureNames::offsetY << FeatureNames::height
                     << FeatureNames::width << FeatureNames::heightMax << FeatureNames::widthMax
                     << FeatureNames::multipleRegionEnable;

    createAxes();
    createLabel();
    connectForm();
    onMultipleRegionsEnabled(false);
    refreshMultipleRegions();
    showOnLabel();
    checkConsistency();
}

AOIWidget::~AOIWidget()
{
    // A window that is deleted hides its children, which drops a drag and ends what was typed; the
    // page's own parts are gone by then.
    const auto children = findChildren<QObject*>();
    for (QObject* child : children)
        disconnect(child, nullptr, this, nullptr);
}

void AOIWidget::setTitle()
{
    const QString title
        = featureManager->HasFeature(FeatureNames::aoiEnable) ? tr("AOI") : tr("ROI");
    setAccessibleName(title);
    m_ui->gb_AOI->setTitle(title);
}

void AOIWidget::createAxes()
{
    m_vertical = std::make_unique<RegionAxis>(
        *featureManager,
        RegionAxisNames{FeatureNames::offsetY, FeatureNames::height, FeatureNames::heightMax,
                        FeatureNames::sensorHeight},
        m_ui->spinTop, m_ui->spinHeight);
    m_horizontal = std::make_unique<RegionAxis>(
        *featureManager,
        RegionAxisNames{FeatureNames::offsetX, FeatureNames::width, FeatureNames::widthMax,
                        FeatureNames::sensorWidth},
        m_ui->spinLeft, m_ui->spinWidth);
    m_vertical->load();
    m_horizontal->load();
}

void AOIWidget::createLabel()
{
    m_label = new RubberBandLabel(toInt(m_horizontal->maximum()), toInt(m_vertical->maximum()),
                                  regionColor, m_ui->gb_AOI);
    m_ui->gb_AOI->layout()->addWidget(m_label);
    connect(m_label, SIGNAL(SendGeometry(int, int, int, int)), this,
            SLOT(OnSendGeometry(int, int, int, int)));
    connect(m_label, SIGNAL(UpdateGeometry(int, int, int, int)), this,
            SLOT(OnUpdateGeometry(int, int, int, int)));
    connect(m_label, SIGNAL(clicked()), this, SLOT(OnRubberLabelClicked()));
    connect(m_label, &SensorLabel::dragDropped, this, &AOIWidget::readAllSoon);
}

void AOIWidget::connectForm()
{
    connectField(m_ui->spinTop, SLOT(OnSpinTopValueChanged(double)));
    connectField(m_ui->spinLeft, SLOT(OnSpinLeftValueChanged(double)));
    connectField(m_ui->spinWidth, SLOT(OnSpinWidthValueChanged(double)));
    connectField(m_ui->spinHeight, SLOT(OnSpinHeightValueChanged(double)));
    connect(m_ui->btnFull, SIGNAL(clicked()), this, SLOT(OnROIFull()));
    connect(m_ui->btnHalf, SIGNAL(clicked()), this, SLOT(OnROIHalf()));
    connect(m_ui->btnQuarter, SIGNAL(clicked()), this, SLOT(OnROIQuarter()));
}

// The text comes and goes during a drag, and must not resize the picture beneath the mouse.
void AOIWidget::reserveProblemLines()
{
    QLabel* const label = m_ui->labelInvalidSettings;
    QSizePolicy policy = label->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label->setSizePolicy(policy);
    const QString longest = problemText(regionProblems({0.0, 1.0}, 0.0, {0.0, 1.0}, 0.0));
    label->setFixedHeight(label->fontMetrics().size(Qt::TextExpandTabs, longest).height());
}

void AOIWidget::connectField(QDoubleSpinBox* field, const char* valueSlot)
{
    field->installEventFilter(this);
    connect(field, SIGNAL(valueChanged(double)), this, valueSlot);
    connect(field, SIGNAL(editingFinished()), this, SLOT(OnSpinEditingFinished()));
}

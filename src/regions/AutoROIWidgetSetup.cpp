#include "regions/AutoROIWidget.h"

#include "features/FeatureNames.h"
#include "regions/automatic/AutoExposureEditor.h"
#include "regions/automatic/AutoRegionCamera.h"
#include "regions/automatic/AutoRegionForm.h"
#include "regions/automatic/AutoRegionPicture.h"
#include "regions/automatic/AutoRegionView.h"
#include "regions/automatic/AutoRegionWriter.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AutoROIWidget.h"
#include "widgets/QSpinBoxMouseEventFilter.h"

#include <QTimer>

// The page's parts and their connections.

namespace Name = FeatureNames;

namespace {

constexpr int trustMs = 250;

QSpinBoxMouseEventFilter* filterOn(QDoubleSpinBox* field)
{
    auto* const filter = new QSpinBoxMouseEventFilter(field);
    field->installEventFilter(filter);
    return filter;
}

} // namespace

AutoROIWidget::AutoROIWidget(const FeatureList& camera, QWidget* parent)
    : InnerPage(camera, parent)
{
    if (!AutoRegionCamera::hasAutoRegion(*featureManager))
        return;

    setTitle();
    if (installTranslator(QStringLiteral("tabextensionautoaoi")))
        setTitle();
    observedFeatures << Name::height << Name::width << Name::dspTop << Name::dspLeft
                     << Name::dspRight << Name::dspBottom << Name::aoiHeight << Name::aoiWidth
                     << Name::aoiOffsetX << Name::aoiOffsetY << Name::autoModeHeight
                     << Name::autoModeWidth << Name::autoModeOffsetX << Name::autoModeOffsetY
                     << Name::aoiEnable << Name::aoiShowArea << Name::exposureAutoMin
                     << Name::exposureAutoMax << Name::exposureAutoTimebase
                     << Name::intensityControllerRegion;

    m_ui = std::make_unique<Ui::AutoROIWidget>();
    m_ui->setupUi(this);
    createParts();
    adaptForm(*m_ui, *m_camera);
    guardAgainstWheel(*m_ui, this);
    connectLabel();
    connectRegion();
    setUpExposure();
    loadRegion();
    showRegion();

    if (m_camera->has(Name::dspLeft) && m_camera->usesEdges()
        && !isValidDspRegion(m_camera->edges(), m_limits))
        m_ui->btnFull->click();
}

AutoROIWidget::~AutoROIWidget()
{
    // A page that is deleted while it is visible is hidden later, when its parts are gone: a drag
    // then ends, and a field gives up what was typed.
    const auto children = findChildren<QObject*>();
    for (QObject* child : children)
        disconnect(child, nullptr, this, nullptr);
}

void AutoROIWidget::setTitle()
{
    setAccessibleName(featureManager->HasFeature(Name::aoiOffsetX) ? tr("Autofunction AOI")
                                                                   : tr("Autofunction ROI"));
}

void AutoROIWidget::createParts()
{
    m_camera = std::make_unique<AutoRegionCamera>(*featureManager);
    m_limits = m_camera->limits();
    m_imageSize = m_camera->imageSize();

    filterOn(m_ui->spinTop);
    filterOn(m_ui->spinLeft);
    const auto* const widthFilter = filterOn(m_ui->spinWidth);
    const auto* const heightFilter = filterOn(m_ui->spinHeight);
    m_editor = std::make_unique<AutoRegionView>(
        *m_camera,
        AutoRegionView::Fields{m_ui->spinTop, m_ui->spinLeft, m_ui->spinRight, m_ui->spinBottom,
                               m_ui->spinWidth, m_ui->spinHeight},
        [widthFilter, heightFilter](RegionNumber size) {
            return (size == RegionNumber::Width ? widthFilter : heightFilter)->isMousePressed();
        });
    m_writer = std::make_unique<AutoRegionWriter>(*m_camera, *m_editor);
    m_picture
        = std::make_unique<AutoRegionPicture>(*m_camera, m_limits, *m_ui->gb_AutoROI->layout());
    m_exposure = std::make_unique<AutoExposureEditor>(*featureManager, m_ui->spinExpAutoMin,
                                                      m_ui->spinExpAutoMax);
    m_trustTimer = new QTimer(this);
    m_trustTimer->setSingleShot(true);
    m_trustTimer->setInterval(trustMs);
    connect(m_trustTimer, &QTimer::timeout, this, &AutoROIWidget::OnResetTrustedUpdate);
}

void AutoROIWidget::connectLabel()
{
    const RubberBandLabel* const label = m_picture->label();
    connect(label, &RubberBandLabel::SendGeometry, this, &AutoROIWidget::OnSendGeometry);
    connect(label, &RubberBandLabel::UpdateGeometry, this, &AutoROIWidget::OnUpdateGeometry);
    connect(label, &RubberBandLabel::GeometryChangeStarted, this,
            &AutoROIWidget::OnGeometryChangeStarted);
    connect(label, &SensorLabel::dragDropped, this, &AutoROIWidget::onGeometryChangeAborted);
}

void AutoROIWidget::connectRegion()
{
    const auto connectField = [this](QDoubleSpinBox* field, void (AutoROIWidget::*slot)(double)) {
        connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, slot);
        connect(field, &QDoubleSpinBox::editingFinished, this,
                &AutoROIWidget::OnSpinEditingFinished);
    };
    connectField(m_ui->spinTop, &AutoROIWidget::OnSpinTopValueChanged);
    connectField(m_ui->spinLeft, &AutoROIWidget::OnSpinLeftValueChanged);
    if (m_camera->has(Name::dspBottom)) {
        connectField(m_ui->spinRight, &AutoROIWidget::OnSpinRightValueChanged);
        connectField(m_ui->spinBottom, &AutoROIWidget::OnSpinBottomValueChanged);
    } else if (m_camera->usesSizes()) {
        connectField(m_ui->spinWidth, &AutoROIWidget::OnSpinWidthValueChanged);
        connectField(m_ui->spinHeight, &AutoROIWidget::OnSpinHeightValueChanged);
    }
    if (m_camera->has(Name::aoiEnable))
        connect(m_ui->cbEnable, &QCheckBox::stateChanged, this,
                &AutoROIWidget::OnEnableStateChanged);
    if (m_camera->has(Name::aoiShowArea))
        connect(m_ui->cbShowArea, &QCheckBox::stateChanged, this,
                &AutoROIWidget::OnShowAreaStateChanged);
    connect(m_ui->btnFull, &QPushButton::clicked, this, &AutoROIWidget::OnROIFull);
    connect(m_ui->btnHalf, &QPushButton::clicked, this, &AutoROIWidget::OnROIHalf);
    connect(m_ui->btnQuarter, &QPushButton::clicked, this, &AutoROIWidget::OnROIQuarter);

    fillComboBox(Name::intensityControllerRegion, m_ui->comboIntensityControllerRegion, false);
    connect(m_ui->comboIntensityControllerRegion, &QComboBox::currentTextChanged, this,
            &AutoROIWidget::OnIntensityControllerRegionChanged);
}

void AutoROIWidget::setUpExposure()
{
    if (m_camera->has(Name::exposureAutoTimebase)) {
        fillComboBox(Name::exposureAutoTimebase, m_ui->comboExpAutoTimeBase, false);
        connect(m_ui->comboExpAutoTimeBase, &QComboBox::currentTextChanged, this,
                &AutoROIWidget::OnExpAutoTimebaseChanged);
    }
    m_exposure->load();
    connect(m_ui->spinExpAutoMin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &AutoROIWidget::OnSpinExpAutoMinChanged);
    connect(m_ui->spinExpAutoMax, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &AutoROIWidget::OnSpinExpAutoMaxChanged);
    connect(m_ui->btnExpAutoMinCurrent, &QPushButton::clicked, this,
            &AutoROIWidget::OnBtnExpAutoMinCurrentClicked);
    connect(m_ui->btnExpAutoMaxCurrent, &QPushButton::clicked, this,
            &AutoROIWidget::OnBtnExpAutoMaxCurrentClicked);
}

void AutoROIWidget::loadRegion()
{
    m_editor->load();
    fitColumns(*m_ui);
    refreshSwitches();
    const bool isWritable = m_camera->isRegionWritable();
    m_ui->gb_AutoROI->setEnabled(isWritable);
    m_ui->gb_Region->setEnabled(isWritable);
}

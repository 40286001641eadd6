#include "regions/AutoROIWidget.h"

#include "features/FeatureNames.h"
#include "regions/automatic/AutoRegionForm.h"
#include "regions/automatic/AutoRegionPicture.h"
#include "regions/automatic/AutoRegionView.h"
#include "regions/automatic/AutoRegionWriter.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AutoROIWidget.h"
#include "widgets/SilentFields.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace Name = FeatureNames;

AutoROIWidget::AutoROIWidget(const FeatureList& camera, QWidget* parent)
    : InnerPage(camera, parent)
{
    if (!AutoRegionCamera::hasAutoRegion(*featureManager))
        return;

    const auto setTitle = [this] {
        setAccessibleName(featureManager->HasFeature(Name::aoiOffsetX) ? tr("Autofunction AOI")
                                                                       : tr("Autofunction ROI"));
    };
    setTitle();
    if (installTranslator(QStringLiteral("tabextensionautoaoi")))
        setTitle();
    observedFeatures << Name::height << Name::width << Name::autoRegion << Name::aoiEnable
                     << Name::aoiShowArea << Name::exposureLimits
                     << Name::intensityControllerRegion;

    m_ui = std::make_unique<Ui::AutoROIWidget>();
    m_ui->setupUi(this);
    createParts();
    adaptForm(*m_ui, *m_camera);
    guardFieldsAgainstWheel();
    readAgain(showEntries() + m_exposure->refresh());
    connectForm();
    connectLabel();
    loadRegion();
    showRegion();

    if (m_camera->has(Name::dspLeft) && m_camera->usesEdges() && m_camera->isRegionTold()
        && !hasValidEdges(m_camera->region(), m_camera->limits()))
        m_ui->btnFull->click();
}

AutoROIWidget::~AutoROIWidget() = default;

void AutoROIWidget::createParts()
{
    m_camera = std::make_unique<AutoRegionCamera>(*featureManager);
    m_camera->followImage(true);
    m_view = std::make_unique<AutoRegionView>(
        *m_camera,
        AutoRegionView::Boxes{m_ui->spinTop, m_ui->spinLeft, m_ui->spinRight, m_ui->spinBottom,
                              m_ui->spinWidth, m_ui->spinHeight});
    m_writer = std::make_unique<AutoRegionWriter>(*m_camera, *m_view);
    m_picture = std::make_unique<AutoRegionPicture>(*m_camera, *m_ui->gb_AutoROI->layout());
    m_exposure = std::make_unique<ExposureLimits>(*featureManager, m_ui->spinExpAutoMin,
                                                  m_ui->spinExpAutoMax);
}

/// Connects what the camera has features for.
void AutoROIWidget::connectForm()
{
    using Page = AutoROIWidget;
    constexpr auto valueChanged = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
    const auto connect = [this](auto* sender, auto signal, auto slot) {
        QObject::connect(sender, signal, this, slot);
    };
    const auto connectField = [&](const QDoubleSpinBox* field, void (Page::*slot)(double)) {
        connect(field, valueChanged, slot);
        connect(field, &QDoubleSpinBox::editingFinished, &Page::OnSpinEditingFinished);
    };
    connectField(m_ui->spinTop, &Page::OnSpinTopValueChanged);
    connectField(m_ui->spinLeft, &Page::OnSpinLeftValueChanged);
    if (m_camera->has(RegionNumber::Bottom)) {
        connectField(m_ui->spinRight, &Page::OnSpinRightValueChanged);
        connectField(m_ui->spinBottom, &Page::OnSpinBottomValueChanged);
    } else if (m_camera->usesSizes()) {
        connectField(m_ui->spinWidth, &Page::OnSpinWidthValueChanged);
        connectField(m_ui->spinHeight, &Page::OnSpinHeightValueChanged);
    }
    if (!m_ui->cbEnable->isHidden())
        connect(m_ui->cbEnable, &QCheckBox::stateChanged, &Page::OnEnableStateChanged);
    if (!m_ui->cbShowArea->isHidden())
        connect(m_ui->cbShowArea, &QCheckBox::stateChanged, &Page::OnShowAreaStateChanged);
    constexpr auto clicked = &QPushButton::clicked;
    constexpr auto chosen = &QComboBox::currentTextChanged;
    connect(m_ui->btnFull, clicked, &Page::OnROIFull);
    connect(m_ui->btnHalf, clicked, &Page::OnROIHalf);
    connect(m_ui->btnQuarter, clicked, &Page::OnROIQuarter);
    connect(m_ui->comboIntensityControllerRegion, chosen,
            &Page::OnIntensityControllerRegionChanged);
    if (!m_ui->comboExpAutoTimeBase->isHidden())
        connect(m_ui->comboExpAutoTimeBase, chosen, &Page::OnExpAutoTimebaseChanged);
    connect(m_ui->spinExpAutoMin, valueChanged, &Page::OnSpinExpAutoMinChanged);
    connect(m_ui->spinExpAutoMax, valueChanged, &Page::OnSpinExpAutoMaxChanged);
    connect(m_ui->btnExpAutoMinCurrent, clicked, &Page::OnBtnExpAutoMinCurrentClicked);
    connect(m_ui->btnExpAutoMaxCurrent, clicked, &Page::OnBtnExpAutoMaxCurrentClicked);
}

void AutoROIWidget::connectLabel()
{
    using Label = RubberBandLabel;
    using Page = AutoROIWidget;
    Label* const label = m_picture->label();
    label->setAccessibleName(m_ui->gb_AutoROI->title());
    connect(label, &Label::SendGeometry, this, &Page::OnSendGeometry);
    connect(label, &Label::UpdateGeometry, this, &Page::OnUpdateGeometry);
    connect(label, &Label::GeometryChangeStarted, this, &Page::OnGeometryChangeStarted);
    connect(label, &Label::aboutToDrag, this, &Page::commitTyping);
    connect(label, &Label::dragDropped, this, &Page::onDragDropped);
}

void AutoROIWidget::writeNumber(RegionNumber number, double value)
{
    // Nothing is written during a drag, whose end sets all four.
    if (!m_ui || isAtWork() || !m_camera->has(number))
        return;
    // The wanted edges are judged, for a strict camera keeps its former ones.
    m_view->field(number).showProvisional(value);
    const AutoRegion wanted = m_view->shown();
    m_writer->write(number, value);
    readAllNext();
    showEdgeProblems(*m_ui, *m_camera, wanted);
    showRegion();
}

void AutoROIWidget::OnSpinEditingFinished()
{
    if (!m_ui)
        return;
    // The field has missed what the camera told while it was being typed in.
    if (!isAtWork() && isVisible())
        visit([this] { m_view->refresh(); });
    readSoon({});
}

void AutoROIWidget::OnEnableStateChanged(int state)
{
    // A refresh must not be entered again by what waits in the queue.
    if (!m_ui || !m_camera->has(Name::aoiEnable) || (!isRefreshing() && !pumpEvents()))
        return;
    showChecked(m_ui->cbEnable,
                featureManager->SetValue(Name::aoiEnable, state > 0 ? 1.0 : 0.0) > 0.0);
    // Reading everything would check the region again and take back what the user switched on.
    readSoon({Name::aoiEnable});
}

void AutoROIWidget::OnShowAreaStateChanged(int state)
{
    const double shown = featureManager->SetValue(Name::aoiShowArea, state > 0 ? 1.0 : 0.0);
    if (!m_ui)
        return;
    showChecked(m_ui->cbShowArea, shown > 0.0);
    readAgain({Name::aoiShowArea});
}

void AutoROIWidget::OnIntensityControllerRegionChanged(const QString& region)
{
    if (m_ui)
        writeEntry(m_ui->comboIntensityControllerRegion, Name::intensityControllerRegion, region);
}

// A camera that does not tell what it took is asked again.
void AutoROIWidget::writeEntry(QComboBox* comboBox, const QString& name, const QString& entry)
{
    if (m_camera->has(name) && !showEntry(comboBox, featureManager->SetStringValue(name, entry)))
        readAgain({name});
}

// False when the page was deleted meanwhile.
bool AutoROIWidget::pumpEvents()
{
    const QPointer<AutoROIWidget> self(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return !self.isNull();
}

void AutoROIWidget::OnGeometryChangeStarted()
{
    if (m_ui)
        m_camera->readOrigin();
    suspendUpdates();
}

void AutoROIWidget::commitTyping()
{
    m_view->commit();
    m_exposure->commit();
}

void AutoROIWidget::onDragDropped()
{
    m_picture->showWaitingImage();
    resumeUpdates(false);
    readAllSoon();
}

void AutoROIWidget::OnUpdateGeometry(int top, int left, int width, int height)
{
    if (!m_ui)
        return;
    // During a drag, whose begin has read the origin, this comes with every move of the mouse.
    if (!isAtWork())
        m_camera->readOrigin();
    m_view->showProvisional(fromLabel({left, top, width, height}, m_camera->origin()));
}

void AutoROIWidget::OnSendGeometry(int top, int left, int width, int height)
{
    if (!m_ui)
        return;
    if (m_writer->writeDrawn({left, top, width, height}))
        m_isTrusted = true;
    m_picture->showWaitingImage();
    // Also while the region is off: the band lies where it was dropped.
    m_picture->showRegion();
    showEdgeProblems(*m_ui, *m_camera, m_view->shown());
    if (m_camera->usesSizes() && !m_camera->usesEdges()) {
        if (!pumpEvents())
            return;
        QTimer::singleShot(250, this, &AutoROIWidget::OnResetTrustedUpdate);
    }
    resumeUpdates(false);
    readAllSoon();
}

void AutoROIWidget::SetFullArea()
{
    if (!m_ui)
        return;
    readAllNext();
    m_writer->writeFullArea();
}

void AutoROIWidget::OnROIFull()
{
    applyPreset([this] { m_writer->presetFull(); });
}

void AutoROIWidget::applyCentredPreset(double factor)
{
    applyPreset([=] { m_writer->presetCentred(factor); });
}

template <typename Preset> void AutoROIWidget::applyPreset(const Preset& preset)
{
    if (!m_ui || isAtWork())
        return;
    visit([this] { m_view->refresh(); }); // the fields emit what differs from the camera
    m_writer->writeFullArea();
    preset();
    showEdgeProblems(*m_ui, *m_camera, m_view->shown());
    showRegion();
    readAllSoon();
}

void AutoROIWidget::OnExpAutoTimebaseChanged(const QString& timebase)
{
    if (!m_ui || !m_camera->has(Name::exposureAutoTimebase))
        return;
    writeEntry(m_ui->comboExpAutoTimeBase, Name::exposureAutoTimebase, timebase);
    readAgain(m_exposure->refresh());
}

void AutoROIWidget::camIsStreaming(bool streaming)
{
    if (!m_ui || !m_camera->has(Name::autoModeWidth))
        return;
    enableControls(!std::exchange(m_isStreaming, streaming));
}

void AutoROIWidget::enableControls(bool enabled)
{
    m_picture->label()->setEnabled(enabled && m_view->isRegionWritable());
    enableRegion(*m_ui, *m_view, enabled);
}

void AutoROIWidget::setBackgroundImage(std::shared_ptr<QPixmap> image)
{
    if (!m_ui)
        return;
    m_picture->showImage(std::move(image));
    readAgain(m_camera->takeUntold());
}

void AutoROIWidget::showEvent(QShowEvent* event)
{
    InnerPage::showEvent(event);
    m_isJustShown = true;
}

bool AutoROIWidget::isAtWork() const
{
    return m_picture && m_picture->label()->isDragging();
}

QStringList AutoROIWidget::refresh(const Changes& changes)
{
    if (!m_ui)
        return {};
    m_ui->gb_AutoROI->setMaximumWidth(QWIDGETSIZE_MAX);
    QStringList untold;
    if (!changes.isEmpty()) {
        const bool isSizeTold
            = changes.names.contains(Name::height) || changes.names.contains(Name::width);
        const bool isResized
            = m_camera->followImage(isSizeTold && !std::exchange(m_isJustShown, false));
        if (isResized) {
            m_picture->followLimits();
            loadRegion();
        }
        const bool readsRegion = isResized || changes.any(Name::autoRegion);
        const bool readsSwitches = changes.any({Name::aoiEnable, Name::aoiShowArea});
        if (readsRegion || readsSwitches) {
            refreshSwitches();
            m_view->refresh(); // a region that is switched on is drawn where it is by now
        }
        if (readsRegion && m_camera->isRegionTold())
            checkRegion();
        showRegion();
    }
    m_picture->retryImage();
    if (changes.any(Name::exposureLimits + QStringList{Name::intensityControllerRegion}))
        untold += showEntries();
    if (changes.any(Name::exposureLimits))
        untold += m_exposure->refresh();
    if (!changes.isEmpty())
        fitColumns(*m_ui);
    enableControls(!m_isStreaming);
    return untold + m_camera->takeUntold();
}

void AutoROIWidget::loadRegion()
{
    m_view->load();
    fitColumns(*m_ui);
    refreshSwitches();
    m_ui->gb_AutoROI->setEnabled(m_view->isRegionWritable());
    m_ui->gb_Region->setEnabled(m_view->isRegionWritable());
}

void AutoROIWidget::refreshSwitches()
{
    const auto show = [this](const QString& name, QCheckBox* box) {
        const Reading<double> reading = m_camera->read(name);
        if (reading.value)
            showChecked(box, *reading.value != 0.0);
    };
    show(Name::aoiEnable, m_ui->cbEnable);
    show(Name::aoiShowArea, m_ui->cbShowArea);
}

QStringList AutoROIWidget::showEntries()
{
    QStringList untold;
    const auto show = [&](const QString& name, QComboBox* comboBox) {
        if (!comboBox->isHidden() && !fillComboBox(name, comboBox, false))
            untold << name;
    };
    show(Name::exposureAutoTimebase, m_ui->comboExpAutoTimeBase);
    show(Name::intensityControllerRegion, m_ui->comboIntensityControllerRegion);
    return untold;
}

void AutoROIWidget::showRegion()
{
    if (m_camera->usesEdges() || m_camera->has(Name::autoModeHeight) || m_ui->cbEnable->isChecked())
        m_picture->showRegion();
}

// The automatic functions must not work on what is no part of the image.
void AutoROIWidget::checkRegion()
{
    if (m_camera->usesEdges())
        showEdgeProblems(*m_ui, *m_camera, m_view->shown());
    else if (m_isTrusted)
        m_ui->labelInvalidSettings->hide();
    else if (m_camera->usesSizes() && !showSizeProblem(*m_ui, *m_camera) && isVisible())
        OnEnableStateChanged(0);
}

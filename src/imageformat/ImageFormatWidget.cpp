#include "imageformat/ImageFormatWidget.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "imageformat/FeatureBinding.h"
#include "imageformat/ImageReaderWidget.h"
#include "multiregion/MultiROIWidget.h"
#include "page/TENotSupported.h"
#include "regions/AOIWidget.h"
#include "regions/AutoROIWidget.h"
#include "ui_ImageFormatWidget.h"
#include "widgets/WheelGuard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QSignalBlocker>
#include <QSpinBox>

namespace Name = FeatureNames;

// The icons sit in a static library, from which the linker takes them only when asked.
static void initializeImages()
{
    Q_INIT_RESOURCE(images);
}

namespace {

void showRange(QSpinBox* spinBox, FeatureManager& manager, const QString& featureName)
{
    double minimum = 0.0;
    double maximum = 0.0;
    const double value = manager.GetValueLimits(featureName, minimum, maximum);
    spinBox->setRange(toInt(minimum), toInt(maximum));
    spinBox->setValue(toInt(value));
}

} // namespace

ImageFormatWidget::ImageFormatWidget(const FeatureList& camera, QWidget* parent)
    : BaseTabPluginWidget(camera, parent)
{
    if (!featureManager->HasFeature(Name::height) || !featureManager->HasFeature(Name::width)) {
        // The text does not describe the test; viewers and their users know it as it is.
        throw TENotSupported(
            QStringLiteral("ImageFormatWidget::ImageFormatWidget"),
            tr("Camera does not support color interpolation matrix, widget not created"));
    }

    initializeImages();
    setTitle();
    auto form = std::make_unique<Ui::ImageFormatWidget>();
    form->setupUi(this);
    m_ui = std::move(form);
    if (!accessibleName().isEmpty() && installTranslator(QStringLiteral("tabextensionimgfmt"))) {
        setTitle();
        m_ui->retranslateUi(this);
    }
    m_ui->btnImageFormat->setContent(m_ui->frmImageFormat);
    connectImageSource();
    addRegionPages();

    m_ui->tabWidget->setCurrentIndex(0);
    if (m_ui->tabWidget->count() == 1)
        m_ui->tabWidget->setTabBarAutoHide(true);

    bindComboBoxes();
    bindSpinBoxes();
    bindCheckBoxes();
    updateIcon();
    if (!featureManager->HasFeature(Name::reverseX))
        disableMissing(m_ui->chkReverseX, tr("Feature 'ReverseX' is not available in the camera."));
    if (!featureManager->HasFeature(Name::reverseY))
        disableMissing(m_ui->chkReverseY, tr("Feature 'ReverseY' is not available in the camera."));
    if (!featureManager->HasFeature(Name::binningSelector))
        disableMissing(m_ui->cmbBinningSelector,
                       tr("Feature 'BinningSelector' is not available in the camera."));
}

// A dialog that closes gives the focus back to a field, whose page has to be whole still.
ImageFormatWidget::~ImageFormatWidget()
{
    m_ui->imageReaderWidget->closeDialog();
}

void ImageFormatWidget::setTitle()
{
    // The viewer and the tab widgets take the accessible name for the tab's title.
    const QString title = tr("Image Format");
    setAccessibleName(title);
    if (parentWidget())
        parentWidget()->setAccessibleName(title);
}

void ImageFormatWidget::connectImageSource()
{
    connect(m_ui->imageReaderWidget, &ImageReaderWidget::requestFrame, this,
            &ImageFormatWidget::requestFrameSignal);
    connect(this, &ImageFormatWidget::receiveFrameSignal, m_ui->imageReaderWidget,
            &ImageReaderWidget::onFrameReceived);
}

void ImageFormatWidget::addRegionPages()
{
    const auto* const region = addRegionPage<AOIWidget>();
    addRegionPage<AutoROIWidget>();
    const auto* const multipleRegions = addRegionPage<MultiROIWidget>();
    if (!multipleRegions)
        return;
    connect(multipleRegions, &MultiROIWidget::loggingMessage, this,
            &ImageFormatWidget::loggingMessage);
    if (region)
        connect(multipleRegions, &MultiROIWidget::multipleRegionsEnabled, region,
                &AOIWidget::onMultipleRegionsEnabled);
}

// Null when the camera lacks the page's features, which the page tells by an empty name.
template <typename Page> Page* ImageFormatWidget::addRegionPage()
{
    auto page = std::make_unique<Page>(cameraFeatures, this);
    if (page->accessibleName().isEmpty())
        return nullptr;
    connect(this, &ImageFormatWidget::acquisitionRunning, page.get(), &Page::camIsStreaming);
    connect(m_ui->imageReaderWidget, &ImageReaderWidget::imageChanged, page.get(),
            &Page::setBackgroundImage);
    m_ui->tabWidget->addTab(page.get(), page->accessibleName());
    return page.release();
}

void ImageFormatWidget::guardAgainstWheel(QWidget* field)
{
    // With the default policy the wheel itself would give the field its focus.
    field->setFocusPolicy(Qt::StrongFocus);
    field->installEventFilter(this);
}

void ImageFormatWidget::bindComboBoxes()
{
    const auto comboBoxes = findChildren<QComboBox*>();
    for (QComboBox* comboBox : comboBoxes) {
        guardAgainstWheel(comboBox);
        const QString featureName = boundFeatureName(comboBox->objectName());
        if (featureName.isEmpty() || !featureManager->HasFeature(featureName))
            continue;
        observedFeatures.append(featureName);
        fillComboBox(featureName, comboBox, true);
        connect(comboBox, &QComboBox::currentTextChanged, this,
                &ImageFormatWidget::OnChangeComboboxSelection);
    }
}

void ImageFormatWidget::bindSpinBoxes()
{
    const auto spinBoxes = findChildren<QSpinBox*>();
    for (QSpinBox* spinBox : spinBoxes) {
        const QString featureName = boundFeatureName(spinBox->objectName());
        if (!featureName.isEmpty() && featureManager->HasFeature(featureName))
            bindSpinBox(spinBox, featureName);
    }
    const auto doubleSpinBoxes = findChildren<QDoubleSpinBox*>();
    for (QDoubleSpinBox* spinBox : doubleSpinBoxes)
        guardAgainstWheel(spinBox);
}

void ImageFormatWidget::bindSpinBox(QSpinBox* spinBox, const QString& featureName)
{
    guardAgainstWheel(spinBox);
    observedFeatures.append(featureName);
    spinBox->setEnabled(featureManager->IsFeatureWritable(featureName));
    showRange(spinBox, *featureManager, featureName);
    connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ImageFormatWidget::OnChangeSpinbox);
}

void ImageFormatWidget::bindCheckBoxes()
{
    const auto checkBoxes = findChildren<QCheckBox*>();
    for (QCheckBox* checkBox : checkBoxes) {
        checkBox->installEventFilter(this);
        QString featureName = boundFeatureName(checkBox->objectName());
        // Two spellings are in use; one form serves both.
        const QLatin1String otherSpelling("MultipleRegionsEnable");
        if (featureName == QLatin1String("MultipleRegionEnable")
            && !featureManager->HasFeature(featureName)
            && featureManager->HasFeature(otherSpelling)) {
            featureName = otherSpelling;
            checkBox->setObjectName(QStringLiteral("chkMultipleRegionsEnable"));
        }
        if (!featureName.isEmpty() && featureManager->HasFeature(featureName))
            bindCheckBox(checkBox, featureName);
    }
}

void ImageFormatWidget::bindCheckBox(QCheckBox* checkBox, const QString& featureName)
{
    observedFeatures.append(featureName);
    {
        // The page of multiple regions writes what is toggled.
        const QSignalBlocker blocker(checkBox);
        checkBox->setChecked(featureManager->GetValue(featureName) != 0.0);
    }
    checkBox->setEnabled(featureManager->IsFeatureWritable(featureName));
    connect(checkBox, &QCheckBox::stateChanged, this, &ImageFormatWidget::OnChangeCheckbox);
}

void ImageFormatWidget::disableMissing(QWidget* field, const QString& toolTip)
{
    field->setEnabled(false);
    field->setToolTip(toolTip);
}

void ImageFormatWidget::camIsStreaming(bool streaming)
{
    emit acquisitionRunning(streaming);
    m_ui->frmImageFormat->setDisabled(streaming);
    m_ui->imageReaderWidget->setDisabled(streaming);
}

// The field that sent the current signal; null, and a log line, when it is of another class.
template <typename Field> Field* ImageFormatWidget::changedField()
{
    QObject* const source = sender();
    if (!source)
        return nullptr;
    auto* const field = qobject_cast<Field*>(source);
    if (!field) {
        const QString name = source->objectName();
        qWarning("Error accessing widget '%s'", qPrintable(name));
        emit loggingMessage(ZebViewerLogFeatureAccess, tr("Error accessing widget '%s'").arg(name));
    }
    return field;
}

void ImageFormatWidget::OnChangeSpinbox(int value)
{
    auto* const spinBox = changedField<QSpinBox>();
    if (!spinBox)
        return;
    const QString featureName = boundFeatureName(spinBox->objectName());
    {
        const QSignalBlocker blocker(spinBox);
        spinBox->setValue(toInt(featureManager->SetValue(featureName, value)));
    }
    if (featureName == Name::binningHorizontal || featureName == Name::binningVertical)
        resetImageSource();
}

void ImageFormatWidget::OnChangeComboboxSelection(const QString& currentText)
{
    auto* const comboBox = changedField<QComboBox>();
    if (!comboBox)
        return;
    const QString featureName = boundFeatureName(comboBox->objectName());
    const QSignalBlocker blocker(comboBox);
    comboBox->setCurrentText(featureManager->SetStringValue(featureName, currentText));
}

void ImageFormatWidget::OnChangeCheckbox(int state)
{
    auto* const checkBox = changedField<QCheckBox>();
    if (!checkBox)
        return;
    const QString featureName = boundFeatureName(checkBox->objectName());
    {
        const QSignalBlocker blocker(checkBox);
        // Not setChecked(): in the middle of a click it would leave the box's published state
        // behind, and the next click would not be told.
        const bool isSet = featureManager->SetValue(featureName, state) != 0.0;
        checkBox->setCheckState(isSet ? Qt::Checked : Qt::Unchecked);
    }
    if (featureName == Name::reverseX || featureName == Name::reverseY)
        resetImageSource();
}

void ImageFormatWidget::resetImageSource()
{
    m_ui->imageReaderWidget->setCurrentIndex(ImageReaderWidget::NoImage);
    m_ui->imageReaderWidget->onComboBoxItemActivated(ImageReaderWidget::NoImage);
}

bool ImageFormatWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (isUnfocusedFieldWheel(watched, event)) {
        // Ignored, so that it goes on to the scroll area.
        event->ignore();
        return true;
    }
    return BaseTabPluginWidget::eventFilter(watched, event);
}

void ImageFormatWidget::updateIcon()
{
    m_ui->lblIcon->setPixmap(QPixmap(isDarkMode() ? QStringLiteral(":/images/image-darkmode.png")
                                                  : QStringLiteral(":/images/image.png")));
}

void ImageFormatWidget::onPaletteChanged(QEvent*)
{
    if (m_ui)
        updateIcon();
}

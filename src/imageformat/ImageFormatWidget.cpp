#include "imageformat/ImageFormatWidget.h"

#include "features/FeatureNames.h"
#include "imageformat/FeatureBinder.h"
#include "imageformat/ImageReaderWidget.h"
#include "multiregion/MultiROIWidget.h"
#include "page/TENotSupported.h"
#include "regions/AOIWidget.h"
#include "regions/AutoROIWidget.h"
#include "ui_ImageFormatWidget.h"
#include "widgets/Theme.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Name = FeatureNames;

// The icons sit in a static library, from which the linker takes them only when asked.
static void initializeImages()
{
    Q_INIT_RESOURCE(images);
}

ImageFormatWidget::ImageFormatWidget(const FeatureList& camera, QWidget* parent)
    : BaseTabPluginWidget(camera, parent)
    , m_binder(std::make_unique<FeatureBinder>(*this, *featureManager))
{
    if (!featureManager->HasFeature(Name::height) || !featureManager->HasFeature(Name::width)) {
        // The text does not describe the test; viewers and their users know it as it is.
        throw TENotSupported(
            QStringLiteral("ImageFormatWidget::ImageFormatWidget"),
            tr("Camera does not support color interpolation matrix, widget not created"));
    }

    initializeImages();
    // The viewer and the tab widgets take the accessible name for the tab's title.
    setAccessibleName(tr("Image Format"));
    auto form = std::make_unique<Ui::ImageFormatWidget>();
    form->setupUi(this);
    m_ui = std::move(form);
    if (!accessibleName().isEmpty() && installTranslator(QStringLiteral("tabextensionimgfmt"))) {
        setAccessibleName(tr("Image Format"));
        m_ui->retranslateUi(this);
    }
    m_ui->btnImageFormat->setContent(m_ui->frmImageFormat);
    connectImageSource();
    const auto memory = featureManager->link()->memory();
    addRegionPages();

    m_ui->tabWidget->setCurrentIndex(0);
    if (m_ui->tabWidget->count() == 1)
        m_ui->tabWidget->setTabBarAutoHide(true);

    bindFields();
    updateIcon();
    outlineControls(this);
    // Last: a page that is refused leaves the viewer's widget as it was.
    if (parent)
        parent->setAccessibleName(accessibleName());
}

// A dialog that closes gives the focus back to a field, whose page has to be whole still.
ImageFormatWidget::~ImageFormatWidget()
{
    m_ui->imageReaderWidget->closeDialog();
}

void ImageFormatWidget::connectImageSource()
{
    connect(m_ui->imageReaderWidget, &ImageReaderWidget::requestFrame, this,
            &ImageFormatWidget::requestFrameSignal);
    connect(this, &ImageFormatWidget::receiveFrameSignal, m_ui->imageReaderWidget,
            &ImageReaderWidget::onFrameReceived);
    connect(m_ui->imageReaderWidget, &ImageReaderWidget::imageChanged, this, [this] {
        const QString fault = m_ui->imageReaderWidget->fileFault();
        if (!fault.isEmpty())
            emit loggingMessage(ZebViewerLogFeatureAccess, fault);
    });
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
            [this, page = page.get()](const std::shared_ptr<QPixmap>& image) {
                visit([&] { page->setBackgroundImage(image); });
            });
    m_ui->tabWidget->addTab(page.get(), page->accessibleName());
    return page.release();
}

void ImageFormatWidget::bindFields()
{
    const QStringList existing = featureManager->GetFeatureNames();
    const auto comboBoxes = findChildren<QComboBox*>();
    for (QComboBox* const comboBox : comboBoxes) {
        guardAgainstWheel(comboBox);
        if (bind(comboBox, existing))
            connect(comboBox, &QComboBox::currentTextChanged, this,
                    &ImageFormatWidget::OnChangeComboboxSelection);
    }
    const auto spinBoxes = findChildren<QSpinBox*>();
    for (QSpinBox* const spinBox : spinBoxes) {
        if (!bind(spinBox, existing))
            continue;
        guardAgainstWheel(spinBox);
        connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
                &ImageFormatWidget::OnChangeSpinbox);
    }
    const auto checkBoxes = findChildren<QCheckBox*>();
    for (QCheckBox* const checkBox : checkBoxes) {
        checkBox->installEventFilter(this);
        // Two spellings of the feature are in use; one form serves both.
        if (FeatureBinder::featureOf(checkBox) == Name::multipleRegionEnable
            && !existing.contains(Name::multipleRegionEnable)
            && existing.contains(Name::multipleRegionsEnable))
            checkBox->setObjectName(QStringLiteral("chkMultipleRegionsEnable"));
        if (bind(checkBox, existing))
            connect(checkBox, &QCheckBox::stateChanged, this, &ImageFormatWidget::OnChangeCheckbox);
    }
}

bool ImageFormatWidget::bind(QWidget* field, const QStringList& existing)
{
    const QString feature = FeatureBinder::featureOf(field);
    const bool isBound = existing.contains(feature) && m_binder->bind(field);
    if (isBound) {
        observedFeatures.append(feature);
    } else if (feature == Name::reverseX || feature == Name::reverseY
               || feature == Name::binningSelector) {
        field->setEnabled(false);
        field->setToolTip(tr("Feature '%1' is not available in the camera.").arg(feature));
    }
    return isBound;
}

void ImageFormatWidget::camIsStreaming(bool streaming)
{
    emit acquisitionRunning(streaming);
    m_ui->frmImageFormat->setDisabled(streaming);
    m_ui->imageReaderWidget->setDisabled(streaming);
}

// The field is what sent the current signal.
void ImageFormatWidget::write(const QMetaObject& fieldType, const QVariant& value)
{
    QObject* const field = sender();
    if (!field)
        return;
    if (!fieldType.cast(field)) {
        const QString name = field->objectName();
        qWarning("Error accessing widget '%s'", qPrintable(name));
        emit loggingMessage(ZebViewerLogFeatureAccess, tr("Error accessing widget '%s'").arg(name));
        return;
    }
    const QString feature = FeatureBinder::featureOf(field);
    if (!m_binder->write(static_cast<QWidget*>(field), value))
        readAgain({feature});
    // A stored background image no longer matches the sensor.
    if (Name::pictureGeometry.contains(feature))
        resetImageSource();
}

void ImageFormatWidget::resetImageSource()
{
    m_ui->imageReaderWidget->setCurrentIndex(ImageReaderWidget::NoImage);
    m_ui->imageReaderWidget->onComboBoxItemActivated(ImageReaderWidget::NoImage);
}

void ImageFormatWidget::refreshFeatures()
{
    QStringList names = std::exchange(*changedFeatures, {});
    const auto isGeometry
        = [](const QString& name) { return Name::pictureGeometry.contains(name); };
    if (std::any_of(names.cbegin(), names.cend(), isGeometry)) {
        std::copy_if(observedFeatures.cbegin(), observedFeatures.cend(), std::back_inserter(names),
                     isGeometry);
        names.removeDuplicates();
    }
    const auto geometry = [this] {
        return QVector<int>{m_ui->spbBinningHorizontal->value(), m_ui->spbBinningVertical->value(),
                            m_ui->chkReverseX->isChecked(), m_ui->chkReverseY->isChecked()};
    };
    // A change made on this page, which its field shows already, resets the image no second time.
    const auto formerGeometry = geometry();
    readAgain(m_binder->show(names));
    if (geometry() != formerGeometry)
        resetImageSource();
}

void ImageFormatWidget::updateIcon()
{
    m_ui->lblIcon->setPixmap(
        QPixmap(isDarkMode() ? ":/images/image-darkmode.png" : ":/images/image.png"));
}

void ImageFormatWidget::onPaletteChanged(QEvent*)
{
    if (m_ui)
        updateIcon();
}

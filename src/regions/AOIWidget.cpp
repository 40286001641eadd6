#include "regions/AOIWidget.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "regions/image/AxisRules.h"
#include "regions/label/RubberBandLabel.h"
#include "ui_AOIWidget.h"
#include "widgets/Theme.h"

#include <QApplication>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <functional>
#include <utility>

namespace Name = FeatureNames;

AOIWidget::AOIWidget(const FeatureList& camera, QWidget* parent)
    : InnerPage(camera, parent)
{
    if (!featureManager->HasFeature(Name::height) || !featureManager->HasFeature(Name::width))
        return;

    // The module's coloured texts count on their style sheets from the first page on.
    regionTextStyle(isDarkMode());

    m_ui = std::make_unique<Ui::AOIWidget>();
    m_ui->setupUi(this);
    const auto setTitle = [this] {
        setAccessibleName(featureManager->HasFeature(Name::aoiEnable) ? tr("AOI") : tr("ROI"));
        m_ui->gb_AOI->setTitle(accessibleName());
    };
    setTitle();
    if (!accessibleName().isEmpty() && installTranslator(QStringLiteral("tabextensionaoi"))) {
        m_ui->retranslateUi(this);
        setTitle();
    }
    observedFeatures << Name::offsetX << Name::offsetY << Name::height << Name::width
                     << Name::heightMax << Name::widthMax << Name::multipleRegionEnable;

    createAxes();
    createLabel();
    connectForm();
    guardFieldsAgainstWheel();
    onMultipleRegionsEnabled(false);
    readMultipleRegions();
    enableRegion();
    showRegion();
}

AOIWidget::~AOIWidget() = default;

void AOIWidget::createAxes()
{
    m_vertical = std::make_unique<RegionAxis>(*featureManager, Name::imageRows, m_ui->spinTop,
                                              m_ui->spinHeight);
    m_horizontal = std::make_unique<RegionAxis>(*featureManager, Name::imageColumns, m_ui->spinLeft,
                                                m_ui->spinWidth);
    readAgain(m_vertical->read(m_ui->spinLeft) + m_horizontal->read(m_ui->spinLeft));
}

void AOIWidget::createLabel()
{
    m_label
        = new RubberBandLabel(toInt(m_horizontal->readMaximum()), toInt(m_vertical->readMaximum()),
                              QColor(0, 100, 255, 255), m_ui->gb_AOI);
    m_label->setAccessibleName(accessibleName());
    m_ui->gb_AOI->layout()->addWidget(m_label);
    connect(m_label, SIGNAL(SendGeometry(int, int, int, int)), this,
            SLOT(OnSendGeometry(int, int, int, int)));
    connect(m_label, SIGNAL(UpdateGeometry(int, int, int, int)), this,
            SLOT(OnUpdateGeometry(int, int, int, int)));
    connect(m_label, SIGNAL(clicked()), this, SLOT(OnRubberLabelClicked()));
    connect(m_label, &SensorLabel::aboutToDrag, this, &AOIWidget::commitTyping);
    connect(m_label, &SensorLabel::dragDropped, this, &AOIWidget::readAllSoon);
}

void AOIWidget::connectForm()
{
    const auto connectField = [this](QDoubleSpinBox* field, const char* valueSlot) {
        connect(field, SIGNAL(valueChanged(double)), this, valueSlot);
        connect(field, SIGNAL(editingFinished()), this, SLOT(OnSpinEditingFinished()));
    };
    connectField(m_ui->spinTop, SLOT(OnSpinTopValueChanged(double)));
    connectField(m_ui->spinLeft, SLOT(OnSpinLeftValueChanged(double)));
    connectField(m_ui->spinWidth, SLOT(OnSpinWidthValueChanged(double)));
    connectField(m_ui->spinHeight, SLOT(OnSpinHeightValueChanged(double)));
    connect(m_ui->btnFull, SIGNAL(clicked()), this, SLOT(OnROIFull()));
    connect(m_ui->btnHalf, SIGNAL(clicked()), this, SLOT(OnROIHalf()));
    connect(m_ui->btnQuarter, SIGNAL(clicked()), this, SLOT(OnROIQuarter()));
}

// Nothing is written during a drag, whose end sets all four.
void AOIWidget::write(const std::unique_ptr<RegionAxis>& axis, Number number, double value)
{
    if (!m_ui || isAtWork())
        return;
    std::invoke(number, *axis, value);
    readAllNext();
    showRegion();
}

void AOIWidget::commitTyping()
{
    m_vertical->commit();
    m_horizontal->commit();
}

void AOIWidget::OnSendGeometry(int top, int left, int width, int height)
{
    if (!m_ui)
        return;
    // The vertical correction moves by the size's step, the horizontal one by the offset's.
    const AxisPlan vertical
        = m_vertical->readPlan({double(top), double(height)}, m_ui->spinHeight->singleStep());
    const AxisPlan horizontal
        = m_horizontal->readPlan({double(left), double(width)}, m_ui->spinLeft->singleStep());
    {
        const QSignalBlocker blocker(m_label);
        m_vertical->write(vertical);
        m_horizontal->write(horizontal);
    }
    showRegion();
    readAllSoon();
}

void AOIWidget::OnUpdateGeometry(int top, int left, int width, int height)
{
    if (!m_ui)
        return;
    m_vertical->showProvisional({double(top), double(height)});
    m_horizontal->showProvisional({double(left), double(width)});
    checkConsistency();
}

void AOIWidget::OnRubberLabelClicked()
{
    if (!m_ui)
        return;
    m_vertical->widen();
    m_horizontal->widen();
    readAllNext();
}

void AOIWidget::OnROIFull()
{
    if (m_ui)
        applyPreset({m_ui->spinLeft->minimum(), m_horizontal->readMaximum()},
                    {m_ui->spinTop->minimum(), m_vertical->readMaximum()});
}

void AOIWidget::applyCentredPreset(double factor)
{
    if (m_ui)
        applyPreset(centredSpan(m_horizontal->readMaximum(), factor),
                    centredSpan(m_vertical->readMaximum(), factor));
}

void AOIWidget::applyPreset(const Span<double>& horizontal, const Span<double>& vertical)
{
    if (isAtWork())
        return;
    const QPointer<QWidget> focus(QApplication::focusWidget()); // which a disabled button loses
    QVector<QPushButton*> enabled;
    for (QPushButton* button : {m_ui->btnFull, m_ui->btnHalf, m_ui->btnQuarter}) {
        // The button's own flag: its parents may be disabled for reasons of their own.
        if (!button->testAttribute(Qt::WA_ForceDisabled))
            enabled << button;
        button->setEnabled(false);
    }
    OnSendGeometry(toInt(vertical.start), toInt(horizontal.start), toInt(horizontal.length),
                   toInt(vertical.length));
    for (QPushButton* button : std::as_const(enabled))
        button->setEnabled(true);
    if (focus)
        focus->setFocus();
    m_label->setEnabled(false);
    m_vertical->forgetMaximum();
}

bool AOIWidget::isAtWork() const
{
    return m_label && m_label->isDragging();
}

QStringList AOIWidget::refresh(const Changes& changes)
{
    if (!m_ui || changes.isEmpty())
        return {};
    // A camera that has notified of all that the page wrote does so of whatever else changes.
    const QStringList vertical = m_vertical->takeWritten();
    const QStringList horizontal = m_horizontal->takeWritten();
    const QStringList written = vertical + horizontal;
    const bool isOwn = !written.isEmpty()
        && !Changes{false, changes.names}.any(Name::sizeLimits + Name::multipleRegionSwitches)
        && std::all_of(written.begin(), written.end(),
                       [&](const QString& name) { return changes.names.contains(name); });
    const Changes news{changes.all && !isOwn, changes.names};
    QStringList untold;
    const auto readAxis = [&](RegionAxis& axis, bool isNews, const QStringList& writes) {
        // The vertical increment too becomes the step of the horizontal field.
        if (isNews)
            untold
                += axis.read(m_ui->spinLeft,
                             isOwn && !writes.isEmpty() ? RegionAxis::moved : FeatureReader::Whole);
        else if (axis.isWidened())
            untold += axis.read(m_ui->spinLeft, FeatureReader::Value | FeatureReader::Range);
    };
    readAxis(*m_vertical, news.any({Name::offsetY, Name::height, Name::heightMax}), vertical);
    readAxis(*m_horizontal, news.any({Name::offsetX, Name::width, Name::widthMax}), horizontal);
    if (news.any(Name::multipleRegionSwitches))
        readMultipleRegions();
    // Only when they were not told: a picture is scaled for them.
    if (changes.names.contains(Name::sensorWidth))
        showBackground();
    enableRegion();
    showRegion();
    return untold;
}

void AOIWidget::readMultipleRegions()
{
    const Reading<double> isEnabled
        = featureManager->Read(Name::multipleRegionEnable, Name::multipleRegionsEnable)
              .number(FeatureReader::Value);
    if (isEnabled.value)
        onMultipleRegionsEnabled(*isEnabled.value > 0.0);
    if (!isEnabled.isComplete)
        readAgain({Name::multipleRegionEnable});
}

// A region takes all four numbers.
void AOIWidget::enableRegion()
{
    const bool isWritable = m_horizontal->isWritable() && m_vertical->isWritable();
    for (QWidget* widget :
         std::initializer_list<QWidget*>{m_label, m_ui->btnFull, m_ui->btnHalf, m_ui->btnQuarter})
        widget->setEnabled(isWritable);
}

void AOIWidget::showRegion()
{
    const double width = m_horizontal->readMaximum();
    const double height = m_vertical->readMaximum();
    const QSize sensor(toInt(width), toInt(height));
    if (m_label->sensorSize() != sensor) {
        m_label->setSensorSize(sensor.width(), sensor.height());
        if (m_background)
            showBackground();
    }
    checkConsistency();
    if (!m_horizontal->isTold() || !m_vertical->isTold())
        return;
    const Span<double> vertical = onSensor(m_vertical->onCamera(), height);
    const Span<double> horizontal = onSensor(m_horizontal->onCamera(), width);
    m_label->setRegion(toInt(vertical.start), toInt(horizontal.start), toInt(horizontal.length),
                       toInt(vertical.length));
}

// The camera's region is judged as well: a field cannot show what is out of its range.
void AOIWidget::checkConsistency()
{
    const QString text
        = problemText(m_horizontal->isBeyondMaximum(), m_vertical->isBeyondMaximum());
    m_ui->labelInvalidSettings->setText(text);
    m_ui->labelInvalidSettings->setVisible(text != problemText(false, false));
}

QString AOIWidget::problemText(bool isTooWide, bool isTooHigh)
{
    QString text = tr("Invalid settings: ");
    if (isTooWide)
        text += tr("\n\tOffsetX + Width > Maximum Width! ");
    if (isTooHigh)
        text += tr("\n\tOffsetY + Height > Maximum Height! ");
    return text;
}

void AOIWidget::camIsStreaming(bool streaming)
{
    if (!m_ui)
        return;
    m_ui->gb_AOI->setEnabled(!streaming);
    m_ui->gb_Region->setEnabled(!streaming);
}

void AOIWidget::onMultipleRegionsEnabled(bool multipleEnabled)
{
    if (!m_ui)
        return;
    m_ui->scrollAreaWidgetContents->setDisabled(multipleEnabled);
    m_ui->gb_AOI->setVisible(!multipleEnabled);
    m_ui->lblWarning->setVisible(multipleEnabled);
    m_ui->lblWarning->setText(
        multipleEnabled ? tr("'%1' widget cannot be used if 'MultipleRegionsEnabled' is on.")
                              .arg(accessibleName())
                        : QString());
}

void AOIWidget::setBackgroundImage(std::shared_ptr<QPixmap> image)
{
    m_background = std::move(image);
    if (!m_ui)
        return;
    m_horizontal->forgetMaximum();
    m_vertical->forgetMaximum();
    showBackground();
    QApplication::restoreOverrideCursor(); // that of whoever chose the image
}

void AOIWidget::showBackground()
{
    QApplication::setOverrideCursor(Qt::WaitCursor); // which the label takes back
    const bool isTold = m_horizontal->readSensor();
    if (!m_vertical->readSensor() || !isTold)
        readAgain({Name::sensorWidth});
    m_label->showBackground(m_background,
                            {toInt(m_horizontal->sensor()), toInt(m_vertical->sensor())}, {});
}

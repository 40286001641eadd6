// What the page shows of the camera.

#include "imageformat/ImageFormatWidget.h"

#include "features/FeatureNames.h"
#include "features/NumberConversion.h"
#include "imageformat/FeatureBinding.h"
#include "ui_ImageFormatWidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace Name = FeatureNames;

namespace {

// A stored background image no longer matches the sensor once one of these changed.
bool changesGeometry(const QString& featureName)
{
    return featureName == Name::binningHorizontal || featureName == Name::binningVertical
        || featureName == Name::reverseX || featureName == Name::reverseY;
}

bool hasExactClass(const QWidget* widget, const char* className)
{
    return qstrcmp(widget->metaObject()->className(), className) == 0;
}

/// Of a class that is refreshed; subclasses have rules of their own.
bool isField(const QWidget* widget)
{
    return hasExactClass(widget, "QSpinBox") || hasExactClass(widget, "QComboBox")
        || hasExactClass(widget, "QCheckBox");
}

/// Shows range, value and access by one look-up; without the feature the box keeps what it shows.
void updateSpinBox(QSpinBox* spinBox, FeatureManager& manager, const QString& featureName)
{
    constexpr double untouched = std::numeric_limits<double>::quiet_NaN();
    bool isWritable = false;
    double minimum = untouched;
    double maximum = untouched;
    double increment = untouched;
    const double value
        = manager.GetValueState(featureName, isWritable, minimum, maximum, increment);
    spinBox->setEnabled(isWritable);
    if (std::isnan(minimum) && std::isnan(maximum) && std::isnan(increment))
        return;
    spinBox->setRange(toInt(minimum), toInt(maximum));
    spinBox->setValue(toInt(value));
}

} // namespace

bool ImageFormatWidget::showsCameraGeometry() const
{
    const auto showsNumber = [this](const QString& featureName, const QSpinBox* spinBox) {
        return !featureManager->HasFeature(featureName)
            || toInt(featureManager->GetValue(featureName)) == spinBox->value();
    };
    const auto showsFlag = [this](const QString& featureName, const QCheckBox* checkBox) {
        const bool isSet = featureManager->HasFeature(featureName)
            && featureManager->GetValue(featureName) != 0.0;
        return isSet == checkBox->isChecked();
    };
    return showsNumber(Name::binningHorizontal, m_ui->spbBinningHorizontal)
        && showsNumber(Name::binningVertical, m_ui->spbBinningVertical)
        && showsFlag(Name::reverseX, m_ui->chkReverseX)
        && showsFlag(Name::reverseY, m_ui->chkReverseY);
}

void ImageFormatWidget::refreshFeatures()
{
    const QStringList names = *changedFeatures;
    if (names.isEmpty())
        return;

    // Compared before the fields follow, so that a change made on this page, which its field shows
    // already, does not reset the image a second time.
    if (std::any_of(names.begin(), names.end(), changesGeometry) && !showsCameraGeometry())
        resetImageSource();
    auto fields = findChildren<QWidget*>();
    fields.erase(std::remove_if(fields.begin(), fields.end(), std::not_fn(isField)), fields.end());
    for (const QString& featureName : names) {
        const auto bound = widgetsBoundTo(featureName, fields);
        for (QWidget* field : bound)
            updateField(field, featureName);
    }
    changedFeatures->clear();
}

void ImageFormatWidget::updateField(QWidget* field, const QString& featureName)
{
    const QSignalBlocker blocker(field);
    if (hasExactClass(field, "QSpinBox")) {
        updateSpinBox(static_cast<QSpinBox*>(field), *featureManager, featureName);
        return;
    }
    if (!featureManager->HasFeature(featureName)) {
        field->setEnabled(false);
        return;
    }
    if (hasExactClass(field, "QComboBox"))
        fillComboBox(featureName, static_cast<QComboBox*>(field), true);
    else
        static_cast<QCheckBox*>(field)->setChecked(featureManager->GetValue(featureName) != 0.0);
    field->setEnabled(featureManager->IsFeatureWritable(featureName));
}

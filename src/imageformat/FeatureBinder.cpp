#include "imageformat/FeatureBinder.h"

#include "features/FeatureManager.h"
#include "features/FeatureWriting.h"
#include "features/NumberConversion.h"
#include "widgets/SilentFields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

namespace {

constexpr int prefixLength = 3;

bool hasPrefix(const QString& objectName)
{
    const auto isLowerCase
        = [](QChar letter) { return letter >= QLatin1Char('a') && letter <= QLatin1Char('z'); };
    return objectName.size() > prefixLength
        && std::all_of(objectName.begin(), objectName.begin() + prefixLength, isLowerCase);
}

bool isField(const QWidget* widget)
{
    const QMetaObject* const type = widget->metaObject();
    return type == &QSpinBox::staticMetaObject || type == &QComboBox::staticMetaObject
        || type == &QCheckBox::staticMetaObject;
}

} // namespace

FeatureBinder::FeatureBinder(QWidget& form, FeatureManager& manager)
    : m_form(form)
    , m_manager(manager)
{
}

QString FeatureBinder::featureOf(const QObject* field)
{
    return field->objectName().mid(prefixLength);
}

bool FeatureBinder::bind(QWidget* field)
{
    const QString name = featureOf(field);
    if (name.isEmpty())
        return false;
    FeatureReader feature = m_manager.Read(name);
    if (feature)
        showReading(field, feature, Entries::Refilled);
    return bool(feature);
}

QStringList FeatureBinder::show(const QStringList& features)
{
    const auto found = m_manager.FindAll(features);
    const auto read = [this, &found](const QString& name) {
        const auto isNamed = [&](const FeatureReader& feature) { return feature.name() == name; };
        const auto feature = std::find_if(found.begin(), found.end(), isNamed);
        // A look-up of its own tells a missing feature from one that was kept back.
        return feature == found.end() || m_manager.link()->isClosed() ? m_manager.Read(name)
                                                                      : *feature;
    };
    QStringList untold;
    const auto fields = boundTo(features);
    for (QWidget* const field : fields) {
        FeatureReader feature = read(featureOf(field));
        if (!feature && feature.isKnown())
            field->setEnabled(false);
        else if (!feature || !showReading(field, feature, Entries::Refilled))
            untold.append(featureOf(field));
    }
    return untold;
}

bool FeatureBinder::write(QWidget* field, const QVariant& value)
{
    const QString name = featureOf(field);
    FeatureReader feature = m_manager.Read(name);
    if (feature && qobject_cast<QComboBox*>(field))
        feature.write(value.toString().toStdString().c_str());
    else if (feature)
        FeatureWriting::writeNumber(feature, name, value.toDouble());
    // The box is in the middle of telling what was chosen, so it keeps its entries.
    return showReading(field, feature, Entries::Kept);
}

bool FeatureBinder::showReading(QWidget* field, FeatureReader& feature, Entries entries)
{
    const QSignalBlocker blocker(field);
    QVariant& told = m_told[featureOf(field)];
    const auto take = [field, &told](const auto& reading) {
        if (reading.value)
            told = *reading.value;
        if (reading.isWritable)
            field->setEnabled(*reading.isWritable);
        return reading.isComplete;
    };

    if (auto* const comboBox = qobject_cast<QComboBox*>(field)) {
        bool isComplete = take(feature.read<QString>());
        if (entries == Entries::Refilled) {
            const QStringList offered = feature.entries();
            isComplete = isComplete && !offered.isEmpty();
            if (!offered.isEmpty())
                showEntries(comboBox, offered, true);
        }
        const bool isEntry = !told.isValid() || showEntry(comboBox, told.toString());
        return isComplete && (isEntry || entries == Entries::Refilled);
    }
    auto* const spinBox = qobject_cast<QSpinBox*>(field);
    const auto reading = feature.number(FeatureReader::Value | FeatureReader::Access
                                        | (spinBox ? FeatureReader::Range : 0));
    const bool isComplete = take(reading);
    if (spinBox && reading.minimum && reading.maximum)
        spinBox->setRange(toInt(*reading.minimum), toInt(*reading.maximum));
    if (spinBox && told.isValid())
        spinBox->setValue(toInt(told.toDouble()));
    else if (told.isValid())
        showChecked(static_cast<QCheckBox*>(field), told.toDouble() != 0.0);
    return isComplete;
}

QList<QWidget*> FeatureBinder::boundTo(const QStringList& features) const
{
    QHash<QString, QList<QWidget*>> fields;
    const auto widgets = m_form.findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        if (isField(widget) && hasPrefix(widget->objectName()))
            fields[featureOf(widget)].append(widget);
    }
    QList<QWidget*> bound;
    for (const QString& feature : features)
        bound += fields.value(feature);
    return bound;
}

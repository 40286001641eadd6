#include "regions/automatic/AutoExposureEditor.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "page/NumberField.h"
#include "regions/automatic/ExposureLimit.h"

#include <QDoubleSpinBox>
#include <QSignalBlocker>

#include <algorithm>

namespace Name = FeatureNames;

AutoExposureEditor::AutoExposureEditor(FeatureManager& manager, QDoubleSpinBox* minimumField,
                                       QDoubleSpinBox* maximumField)
    : m_manager(manager)
    , m_minimum{Name::exposureAutoMin, minimumField}
    , m_maximum{Name::exposureAutoMax, maximumField}
{
}

void AutoExposureEditor::load()
{
    load(m_minimum);
    load(m_maximum);
}

void AutoExposureEditor::load(const Limit& limit)
{
    const QSignalBlocker blocker(limit.field);
    // Also without the feature: the other limit's writes go by the decimals shown here.
    limit.field->setDecimals(m_manager.IsFloatFeature(limit.featureName) ? 2 : 0);
    if (!m_manager.HasFeature(limit.featureName))
        return;
    double minimum = 0.0;
    double maximum = 0.0;
    double increment = 1.0;
    const double value = m_manager.GetValueRange(limit.featureName, minimum, maximum, increment);
    limit.field->setSingleStep(std::max(1.0, increment));
    showRangeAndValue(limit.field, minimum, maximum, value);
}

void AutoExposureEditor::refresh()
{
    refresh(m_minimum);
    refresh(m_maximum);
}

void AutoExposureEditor::refresh(const Limit& limit)
{
    if (!m_manager.HasFeature(limit.featureName))
        return;
    double minimum = 0.0;
    double maximum = 0.0;
    const double value = m_manager.GetValueLimits(limit.featureName, minimum, maximum);
    showRangeAndValue(limit.field, minimum, maximum, value);
}

void AutoExposureEditor::write(const Limit& limit, double value)
{
    if (!m_manager.HasFeature(limit.featureName))
        return;
    // The minimum's decimals scale both limits.
    const double written
        = exposureLimitToWrite(value, m_manager.GetIncrement(limit.featureName),
                               limit.field->decimals(), m_minimum.field->decimals());
    showValue(limit.field, m_manager.SetValue(limit.featureName, written));
}

void AutoExposureEditor::useTime(const Limit& limit)
{
    if (m_manager.HasFeature(Name::exposureTime, Name::exposureTimeAbs))
        limit.field->setValue(m_manager.GetValue(Name::exposureTime, Name::exposureTimeAbs));
}

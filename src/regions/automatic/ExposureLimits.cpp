#include "regions/automatic/ExposureLimits.h"

#include "features/FeatureManager.h"
#include "features/FeatureNames.h"
#include "features/NumberConversion.h"

#include <QDoubleSpinBox>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Name = FeatureNames;

namespace {

/// The language leaves values beyond single precision undefined.
float toFloat(double value)
{
    constexpr auto largest = static_cast<double>(std::numeric_limits<float>::max());
    return static_cast<float>(std::clamp(value, -largest, largest));
}

} // namespace

double exposureLimitToWrite(double value, double increment, int decimals, int scaleDecimals)
{
    if (!(increment > 0.0) || decimals <= 0)
        return value;
    const std::int64_t scale = toInt64(std::pow(10.0, scaleDecimals));
    return static_cast<double>(toFloat(static_cast<double>(scale) * value + 0.5)
                               / static_cast<float>(scale));
}

ExposureLimits::ExposureLimits(FeatureManager& manager, QDoubleSpinBox* minimumField,
                               QDoubleSpinBox* maximumField)
    : m_manager(manager)
    , m_minimum{Name::exposureAutoMin, NumberField(minimumField)}
    , m_maximum{Name::exposureAutoMax, NumberField(maximumField)}
{
    for (const Limit& limit : {m_minimum, m_maximum}) {
        const QSignalBlocker blocker(limit.field.box());
        // Also without the feature: the other limit's writes go by the decimals shown here.
        limit.field.box()->setDecimals(manager.IsFloatFeature(limit.featureName) ? 2 : 0);
    }
}

QStringList ExposureLimits::refresh()
{
    QStringList untold;
    show(m_minimum, untold);
    show(m_maximum, untold);
    return untold;
}

void ExposureLimits::show(Limit& limit, QStringList& untold)
{
    const Reading<double> reading = limit.isLoaded ? readNumber(m_manager, limit.featureName)
                                                   : readFieldNumber(m_manager, limit.featureName);
    if (reading.exists && (reading.isComplete || reading.isWritable))
        limit.field.box()->setEnabled(reading.isWritable);
    if (!limit.field.showWhole(reading))
        untold << limit.featureName;
    if (!limit.isLoaded && reading.isComplete) {
        limit.field.box()->setSingleStep(std::max(1.0, reading.increment.value_or(1.0)));
        limit.isLoaded = true;
    }
}

bool ExposureLimits::write(Limit& limit, double value)
{
    const Reading<double> reading = readNumber(m_manager, limit.featureName);
    if (!reading.exists)
        return true;
    // The minimum's decimals scale both limits.
    const double written
        = exposureLimitToWrite(value, reading.increment.value_or(0.0),
                               limit.field.box()->decimals(), m_minimum.field.box()->decimals());
    const double taken = m_manager.SetValue(limit.featureName, written);
    if (taken >= 0.0)
        limit.field.showTaken(taken);
    return taken >= 0.0;
}

void ExposureLimits::useTime(const Limit& limit)
{
    if (const auto time = readValue(m_manager, Name::exposureTime, Name::exposureTimeAbs))
        limit.field.box()->setValue(*time);
}

void ExposureLimits::commit()
{
    m_minimum.field.commit();
    m_maximum.field.commit();
}

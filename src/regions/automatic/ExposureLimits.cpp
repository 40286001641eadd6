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
    , m_limits{{Name::exposureAutoMin, NumberField(minimumField)},
               {Name::exposureAutoMax, NumberField(maximumField)}}
{
}

QStringList ExposureLimits::refresh()
{
    QStringList untold;
    for (Limit& limit : m_limits) {
        if (!show(limit))
            untold << limit.featureName;
    }
    return untold;
}

bool ExposureLimits::show(Limit& limit)
{
    FeatureReader feature = m_manager.Read(limit.featureName);
    if (limit.isLoaded)
        return limit.field.showWhole(feature.number());
    const QSignalBlocker blocker(limit.field.box());
    // Also without the feature: the other limit's writes go by the decimals shown here.
    limit.field.box()->setDecimals(feature.dataType() == Sdk::floatType ? 2 : 0);
    const Reading<double> reading = feature.fieldNumber();
    limit.isLoaded = reading.isComplete;
    if (limit.isLoaded)
        limit.field.box()->setSingleStep(std::max(1.0, reading.increment.value_or(1.0)));
    return limit.field.showWhole(reading);
}

QStringList ExposureLimits::write(Which which, double value)
{
    Limit& limit = m_limits[which];
    const Reading<double> reading = m_manager.Read(limit.featureName).number();
    if (!reading.exists)
        return {};
    const double taken = m_manager.SetValue(
        limit.featureName,
        exposureLimitToWrite(value, reading.increment.value_or(0.0), limit.field.box()->decimals(),
                             m_limits[Minimum].field.box()->decimals()));
    if (taken < 0.0)
        return {limit.featureName};
    limit.field.showTaken(taken);
    return {};
}

void ExposureLimits::useTime(Which which)
{
    if (const auto time = m_manager.Read(Name::exposureTime, Name::exposureTimeAbs).value())
        m_limits[which].field.box()->setValue(*time);
}

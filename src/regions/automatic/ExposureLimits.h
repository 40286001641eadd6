#pragma once

#include "page/NumberField.h"

#include <QStringList>

class FeatureManager;

/// The value that is written for an auto-exposure limit typed as @p value. With an increment and
/// decimals half a unit of the last one is added, in single precision, as the cameras expect.
/// @param decimals of the limit's own field
/// @param scaleDecimals of the minimum's field, which scales the maximum too
double exposureLimitToWrite(double value, double increment, int decimals, int scaleDecimals);

/// In the camera's unit; nothing keeps the minimum below the maximum.
class ExposureLimits
{
public:
    enum Which {
        Minimum,
        Maximum,
    };

    ExposureLimits(FeatureManager& manager, QDoubleSpinBox* minimumField,
                   QDoubleSpinBox* maximumField);

    /// Ranges and values, the first time with steps. Answers the names of what was not told.
    QStringList refresh();
    /// Answers the name when the camera does not tell what it took.
    QStringList write(Which which, double value);
    /// The current exposure time, if the camera tells it; the field emits.
    void useTime(Which which);
    void commit()
    {
        for (Limit& limit : m_limits)
            limit.field.commit();
    }

private:
    struct Limit
    {
        QString featureName;
        NumberField field;
        bool isLoaded = false;
    };

    bool show(Limit& limit);

    FeatureManager& m_manager;
    Limit m_limits[2];
};

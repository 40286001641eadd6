#pragma once

#include "page/NumberField.h"

#include <QStringList>

class FeatureManager;

/// The value that is written for an auto-exposure limit typed as @p value, in the camera's unit.
///
/// Fields with decimals add half a unit of the last one and go through single precision, as the
/// cameras have come to expect; the result is not truncated to the decimals.
/// @param increment of the feature; without one the value stays
/// @param decimals of the limit's own field; without any the value stays
/// @param scaleDecimals of the minimum's field, which scales the maximum too
double exposureLimitToWrite(double value, double increment, int decimals, int scaleDecimals);

/// The limits of automatic exposure and their fields, in the camera's unit.
///
/// The camera's ranges bound the fields; nothing keeps the minimum below the maximum. What the
/// camera reports is shown without a signal, for every write adds half a unit.
class ExposureLimits
{
public:
    ExposureLimits(FeatureManager& manager, QDoubleSpinBox* minimumField,
                   QDoubleSpinBox* maximumField);

    /// Ranges and values from the camera, the first time with steps. Answers the names of what it
    /// did not tell.
    QStringList refresh();
    // False when the camera does not tell what it took.
    bool writeMinimum(double value) { return write(m_minimum, value); }
    bool writeMaximum(double value) { return write(m_maximum, value); }
    // The current exposure time, if the camera tells it; the field emits.
    void useTimeAsMinimum() { useTime(m_minimum); }
    void useTimeAsMaximum() { useTime(m_maximum); }
    /// Writes what is being typed.
    void commit();

private:
    struct Limit
    {
        QString featureName;
        NumberField field;
        bool isLoaded = false;
    };

    void show(Limit& limit, QStringList& untold);
    bool write(Limit& limit, double value);
    void useTime(const Limit& limit);

    FeatureManager& m_manager;
    Limit m_minimum;
    Limit m_maximum;
};

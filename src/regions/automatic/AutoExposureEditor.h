#pragma once

#include <QString>

class FeatureManager;
class QDoubleSpinBox;

/// The limits of automatic exposure and their fields, in the camera's unit.
///
/// The camera's ranges bound the fields; nothing keeps the minimum below the maximum. What the
/// camera reports is shown without a signal, for every write adds half a unit.
class AutoExposureEditor
{
public:
    AutoExposureEditor(FeatureManager& manager, QDoubleSpinBox* minimumField,
                       QDoubleSpinBox* maximumField);

    /// Ranges, steps, decimals and values from the camera.
    void load();
    /// Ranges and values from the camera.
    void refresh();
    void writeMinimum(double value) { write(m_minimum, value); }
    void writeMaximum(double value) { write(m_maximum, value); }
    // The current exposure time; the field emits.
    void useTimeAsMinimum() { useTime(m_minimum); }
    void useTimeAsMaximum() { useTime(m_maximum); }

private:
    struct Limit
    {
        QString featureName;
        QDoubleSpinBox* field;
    };

    void load(const Limit& limit);
    void refresh(const Limit& limit);
    void write(const Limit& limit, double value);
    void useTime(const Limit& limit);

    FeatureManager& m_manager;
    Limit m_minimum;
    Limit m_maximum;
};

#pragma once

#include <QString>

#include <optional>

class FeatureManager;

/// What the camera tells of one feature; empty is what it does not tell.
template <class N> struct Reading
{
    std::optional<N> value;
    std::optional<N> minimum;
    std::optional<N> maximum;
    std::optional<N> increment;
    bool exists = false;
    bool isWritable = false;
    /// Nothing was kept back that the camera has: that there is no such feature, no increment or
    /// nothing to read is known as well. Otherwise what is shown stays, and is to be read again.
    bool isComplete = false;
};

// Each reads a feature by one look-up. A value that fails slowly ends the reading.

/// Integers, floats and, by their value and access alone, booleans as 0 or 1.
Reading<double> readNumber(FeatureManager& manager, const QString& name,
                           const QString& alternative1 = {}, const QString& alternative2 = {});
/// As it fits an input field: the maximum of an integer lies on a whole multiple of its increment,
/// counted from 0 as writes are; a float without an increment gets 0.01.
Reading<double> readFieldNumber(FeatureManager& manager, const QString& name,
                                const QString& alternative1 = {}, const QString& alternative2 = {});
/// The value alone.
std::optional<double> readValue(FeatureManager& manager, const QString& name,
                                const QString& alternative1 = {}, const QString& alternative2 = {});
/// Value and access of a text or an enumeration.
Reading<QString> readText(FeatureManager& manager, const QString& name,
                          const QString& alternative = {});

/// As FeatureManager::SetValue(), and empty when the camera does not tell the value afterwards.
std::optional<double> writeNumber(FeatureManager& manager, const QString& name, double value);

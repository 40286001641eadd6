#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// A value, bound or step of a feature; texts are UTF-8.
using FeatureValue = std::variant<std::int64_t, double, bool, std::string>;

/// One feature as it was last read. Value cells carry it under Qt::UserRole.
struct FeatureInfo
{
    std::string toolTip;
    std::string name; ///< the key of every access to the camera
    std::string displayName;
    std::string description;
    std::string representation; ///< the camera's hint to editors, as "HexNumber"
    std::string unit;           ///< of numbers only
    std::string information;    ///< rich text: description, range, increment
    bool isKnown = false;       ///< the camera has told a value
    bool writable = false;
    bool isRaw = false; ///< bytes, or of an unknown type: neither shown nor edited
    bool isCommand = false;
    FeatureValue value;
    std::vector<FeatureValue> enumEntries; ///< texts, in the camera's order
    std::optional<FeatureValue> minimum;
    std::optional<FeatureValue> maximum;
    std::optional<FeatureValue> increment;
    std::optional<FeatureValue> cameraMinimum; ///< where an owner narrows what may be entered
    std::optional<FeatureValue> cameraMaximum;
};

bool operator==(const FeatureInfo& left, const FeatureInfo& right);

Q_DECLARE_METATYPE(FeatureInfo)

/// Whether the name, the display name or the description contains @p filter, in any case of
/// letters. Blanks around the filter do not count; an empty filter matches everything.
bool matchesFilter(const FeatureInfo& info, const QString& filter);

/// The record in a cell's data, which must outlive it; null when there is none.
const FeatureInfo* recordIn(const QVariant& data);

/// Text as QString, whole numbers as qint64, the others as they are.
QVariant toVariant(const FeatureValue& value);

FeatureValue toFeatureValue(const QVariant& value);

/// As ==, but floating-point numbers are compared exactly: QVariant takes near ones for equal.
bool isSameValue(const QVariant& left, const QVariant& right);

/// Conversions that never throw: a number of either kind, or a boolean; empty for texts and NaN.
std::optional<double> toNumber(const std::optional<FeatureValue>& value);
std::optional<std::int64_t> toInteger(const std::optional<FeatureValue>& value);

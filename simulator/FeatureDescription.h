#pragma once

#include "EnumItem.h"
#include "Range.h"
#include "Value.h"

#include <ZebCPP/ZebCPP.h>

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace sim {

class Reaction;
class State;

/// A feature as a model declares it: its texts, and its rules as functions of the other features.
///
/// Rules run with the camera locked: they ask the State and nothing else. What a rule has read is
/// remembered, so that observers hear of this feature when one of those changes.
///
///     integerFeature("Width", 2048)
///         .in("/ImageFormat")
///         .within([](const State& s) { return IntegerRange(16, s.integer("WidthMax"), 8); })
///         .lockedWhileStreaming()
struct FeatureDescription
{
    template <typename Result> using Rule = std::function<Result(const State&)>;

    std::string name;
    ZebFeatureDataType type = ZebFeatureDataUnknown;
    std::string displayName;
    std::string category = "/";
    std::string unit;
    std::string representation;
    std::string toolTip;
    std::string description;
    ZebFeatureVisibilityType visibility = ZebFeatureVisibilityBeginner;
    bool isReadOnly = false;
    bool isVolatile = false;
    bool isLockedWhileStreaming = false;

    Value value; ///< at the start; of every selected entry that valueOf does not name
    std::map<std::int64_t, Value> valueOf; ///< at the start, by the selector's numeric value
    std::string selector;                  ///< the feature that selects which value this one shows
    std::vector<EnumItem> entries;
    std::vector<std::int64_t> validValues;

    Rule<Value> computed; ///< takes the place of a stored value
    Rule<IntegerRange> integerRange;
    Rule<FloatRange> floatRange;
    Rule<bool> readable;
    Rule<bool> writable;
    std::function<bool(const State&, const std::string& entry)> entryAvailable;
    /// Has the last word on a write that range, entries and access allow.
    std::function<ZebErrorType(const State&, const Value&)> accepts;
    /// What the camera does after the value has changed, or when the command runs.
    std::function<void(Reaction&)> reaction;
    std::chrono::milliseconds commandDuration{0};

    FeatureDescription& in(std::string categoryPath);
    FeatureDescription& shown(std::string asDisplayName);
    FeatureDescription& describedBy(std::string text, std::string shortText = {});
    FeatureDescription& measuredIn(std::string unitText);
    FeatureDescription& represented(std::string hint);
    FeatureDescription& visibleTo(ZebFeatureVisibilityType audience);
    FeatureDescription& readOnly();
    FeatureDescription& changingByItself();
    FeatureDescription& lockedWhileStreaming();
    FeatureDescription& selectedBy(std::string selectorName);
    FeatureDescription& startingWith(std::int64_t entryKey, Value entryValue);
    FeatureDescription& between(IntegerRange range);
    FeatureDescription& between(FloatRange range);
    FeatureDescription& within(Rule<IntegerRange> rule);
    FeatureDescription& withinReal(Rule<FloatRange> rule);
    FeatureDescription& computedAs(Rule<Value> rule);
    FeatureDescription& readableIf(Rule<bool> rule);
    FeatureDescription& writableIf(Rule<bool> rule);
    FeatureDescription& offering(std::function<bool(const State&, const std::string&)> rule);
    FeatureDescription& accepting(std::function<ZebErrorType(const State&, const Value&)> rule);
    FeatureDescription& then(std::function<void(Reaction&)> effect);
    FeatureDescription& lasting(std::chrono::milliseconds duration);

    const EnumItem* entry(const std::string& entryName) const;
    const EnumItem* entry(std::int64_t entryValue) const;
};

using FeatureDescriptions = std::vector<FeatureDescription>;

FeatureDescription integerFeature(std::string name, std::int64_t value = 0);
FeatureDescription floatFeature(std::string name, double value = 0.0);
FeatureDescription booleanFeature(std::string name, bool value = false);
FeatureDescription stringFeature(std::string name, std::string value = {});
FeatureDescription rawFeature(std::string name, Bytes value = {});
FeatureDescription commandFeature(std::string name, std::function<void(Reaction&)> effect = {});
/// The first entry is the value at the start; entries are numbered from 0.
FeatureDescription enumFeature(std::string name, const std::vector<std::string>& entries);

} // namespace sim

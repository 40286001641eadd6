#include "FeatureDescription.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

FeatureDescription described(std::string name, ZebFeatureDataType type, Value value)
{
    FeatureDescription feature;
    feature.displayName = name;
    feature.name = std::move(name);
    feature.type = type;
    feature.value = std::move(value);
    return feature;
}

} // namespace

FeatureDescription& FeatureDescription::in(std::string categoryPath)
{
    category = std::move(categoryPath);
    return *this;
}

FeatureDescription& FeatureDescription::shown(std::string asDisplayName)
{
    displayName = std::move(asDisplayName);
    return *this;
}

FeatureDescription& FeatureDescription::describedBy(std::string text, std::string shortText)
{
    toolTip = shortText.empty() ? text : std::move(shortText);
    description = std::move(text);
    return *this;
}

FeatureDescription& FeatureDescription::measuredIn(std::string unitText)
{
    unit = std::move(unitText);
    return *this;
}

FeatureDescription& FeatureDescription::represented(std::string hint)
{
    representation = std::move(hint);
    return *this;
}

FeatureDescription& FeatureDescription::visibleTo(ZebFeatureVisibilityType audience)
{
    visibility = audience;
    return *this;
}

FeatureDescription& FeatureDescription::readOnly()
{
    isReadOnly = true;
    return *this;
}

FeatureDescription& FeatureDescription::changingByItself()
{
    isVolatile = true;
    return *this;
}

FeatureDescription& FeatureDescription::lockedWhileStreaming()
{
    isLockedWhileStreaming = true;
    return *this;
}

FeatureDescription& FeatureDescription::selectedBy(std::string selectorName)
{
    selector = std::move(selectorName);
    return *this;
}

FeatureDescription& FeatureDescription::startingWith(std::int64_t entryKey, Value entryValue)
{
    valueOf[entryKey] = std::move(entryValue);
    return *this;
}

FeatureDescription& FeatureDescription::between(IntegerRange range)
{
    integerRange = [range](const State&) { return range; };
    return *this;
}

FeatureDescription& FeatureDescription::between(FloatRange range)
{
    floatRange = [range](const State&) { return range; };
    return *this;
}

FeatureDescription& FeatureDescription::within(Rule<IntegerRange> rule)
{
    integerRange = std::move(rule);
    return *this;
}

FeatureDescription& FeatureDescription::withinReal(Rule<FloatRange> rule)
{
    floatRange = std::move(rule);
    return *this;
}

FeatureDescription& FeatureDescription::computedAs(Rule<Value> rule)
{
    computed = std::move(rule);
    isReadOnly = true;
    return *this;
}

FeatureDescription& FeatureDescription::readableIf(Rule<bool> rule)
{
    readable = std::move(rule);
    return *this;
}

FeatureDescription& FeatureDescription::writableIf(Rule<bool> rule)
{
    writable = std::move(rule);
    return *this;
}

FeatureDescription&
FeatureDescription::offering(std::function<bool(const State&, const std::string&)> rule)
{
    entryAvailable = std::move(rule);
    return *this;
}

FeatureDescription&
FeatureDescription::accepting(std::function<ZebErrorType(const State&, const Value&)> rule)
{
    accepts = std::move(rule);
    return *this;
}

FeatureDescription& FeatureDescription::then(std::function<void(Reaction&)> effect)
{
    reaction = std::move(effect);
    return *this;
}

FeatureDescription& FeatureDescription::lasting(std::chrono::milliseconds duration)
{
    commandDuration = duration;
    return *this;
}

const EnumItem* FeatureDescription::entry(const std::string& entryName) const
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const EnumItem& item) { return item.name == entryName; });
    return found == entries.end() ? nullptr : &*found;
}

const EnumItem* FeatureDescription::entry(std::int64_t entryValue) const
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const EnumItem& item) { return item.value == entryValue; });
    return found == entries.end() ? nullptr : &*found;
}

FeatureDescription integerFeature(std::string name, std::int64_t value)
{
    return described(std::move(name), ZebFeatureDataInt, value);
}

FeatureDescription floatFeature(std::string name, double value)
{
    return described(std::move(name), ZebFeatureDataFloat, value);
}

FeatureDescription booleanFeature(std::string name, bool value)
{
    return described(std::move(name), ZebFeatureDataBool, value);
}

FeatureDescription stringFeature(std::string name, std::string value)
{
    return described(std::move(name), ZebFeatureDataString, std::move(value));
}

FeatureDescription rawFeature(std::string name, Bytes value)
{
    return described(std::move(name), ZebFeatureDataRaw, std::move(value));
}

FeatureDescription commandFeature(std::string name, std::function<void(Reaction&)> effect)
{
    return described(std::move(name), ZebFeatureDataCommand, {}).then(std::move(effect));
}

FeatureDescription enumFeature(std::string name, const std::vector<std::string>& entries)
{
    FeatureDescription feature = described(std::move(name), ZebFeatureDataEnum,
                                           entries.empty() ? std::string() : entries.front());
    for (const std::string& entry : entries)
        feature.entries.push_back({entry, static_cast<std::int64_t>(feature.entries.size())});
    return feature;
}

} // namespace sim

#pragma once

#include "Value.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace sim {

class FeatureStore;

/// What the rules of a feature see of the camera, valid for the time of the call.
///
/// A feature that the camera lacks reads 0, an empty text, or the fallback given. Per-entry
/// features read the value of the entry that their selector selects; the ...At() forms name the
/// entry by the selector's numeric value.
class State
{
public:
    /// A rule of feature @p reader is about to read; @p reader is told of later changes.
    State(const FeatureStore& store, std::size_t reader)
        : m_store(store)
        , m_reader(reader)
    {
    }
    /// The same, as if @p selector selected @p entry.
    State(const FeatureStore& store, std::size_t reader, std::size_t selector, std::int64_t entry)
        : m_store(store)
        , m_reader(reader)
        , m_selector(selector)
        , m_entry(entry)
    {
    }

    bool has(std::string_view name) const;
    Value value(std::string_view name) const;
    Value valueAt(std::string_view name, std::int64_t entry) const;

    std::int64_t integer(std::string_view name, std::int64_t fallback = 0) const;
    std::int64_t integerAt(std::string_view name, std::int64_t entry,
                           std::int64_t fallback = 0) const;
    double number(std::string_view name, double fallback = 0.0) const;
    bool isOn(std::string_view name, bool fallback = false) const;
    std::string text(std::string_view name) const;
    std::string textAt(std::string_view name, std::int64_t entry) const;

    /// The numeric value of an integer or enumeration feature, as per-entry values are kept by.
    std::int64_t selected(std::string_view selector) const;
    /// The entries of an enumeration, or the values from 0 to the maximum of an integer feature.
    std::int64_t entryCount(std::string_view selector) const;
    /// The first of the names that the camera has; the first of all if it has none.
    std::string_view firstOf(std::initializer_list<std::string_view> names) const;
    bool isStreaming() const;

protected:
    const FeatureStore& m_store;
    const std::size_t m_reader;
    const std::size_t m_selector = static_cast<std::size_t>(-1); ///< none
    const std::int64_t m_entry = 0;
};

} // namespace sim

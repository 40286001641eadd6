#pragma once

#include "ChangeSet.h"
#include "FeatureDescription.h"

#include <chrono>
#include <cstddef>
#include <deque>
#include <limits>
#include <memory>
#include <set>
#include <string_view>
#include <unordered_map>

namespace sim {

/// The state of one camera: the features' values and the rules that tie them together. Knows of no
/// threads, observers or failures; features are told by their index in the order of the camera.
class FeatureStore
{
public:
    static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

    enum class Rounding {
        Strict,  ///< refuses what is out of range or off the grid
        Nearest, ///< takes the nearest legal number
    };

    explicit FeatureStore(FeatureDescriptions descriptions);

    std::size_t size() const { return m_slots.size(); }
    std::size_t find(std::string_view name) const;
    const FeatureDescription& description(std::size_t index) const;
    std::shared_ptr<const FeatureDescription> sharedDescription(std::size_t index) const;
    const std::vector<std::size_t>& selectedBy(std::size_t selector) const;
    std::size_t selectorOf(std::size_t index) const { return m_slots[index].selector; }

    Value value(std::size_t index) const { return valueFor(none, index); }
    Value valueAt(std::size_t index, std::int64_t entry) const;
    IntegerRange integerRange(std::size_t index) const;
    FloatRange floatRange(std::size_t index) const;
    bool isReadable(std::size_t index) const;
    bool isWritable(std::size_t index) const;
    bool isAvailable(std::size_t index, const std::string& entry) const;
    bool isCommandDone(std::size_t index) const;
    bool isStreaming() const { return m_streaming; }

    /// A client's write: access, type, range, entries and the feature's own rule have a say.
    ZebErrorType write(std::size_t index, const Value& value, Rounding rounding,
                       ChangeSet& changes);
    ZebErrorType run(std::size_t index, ChangeSet& changes);

    /// The camera's own writes: nothing is checked; an equal value changes nothing.
    void store(std::size_t index, const Value& value, ChangeSet& changes);
    void storeAt(std::size_t index, std::int64_t entry, const Value& value, ChangeSet& changes);
    void fit(std::size_t index, ChangeSet& changes);
    void setStreaming(bool streaming, ChangeSet& changes);
    void describe(std::size_t index, FeatureDescription description, ChangeSet& changes);

    /// Reads on behalf of a rule of feature @p reader, which from then on depends on the read one.
    Value valueFor(std::size_t reader, std::size_t index) const;
    Value valueFor(std::size_t reader, std::size_t index, std::int64_t entry) const;
    std::int64_t keyFor(std::size_t reader, std::size_t selector) const;
    bool isStreamingFor(std::size_t reader) const;

private:
    using Clock = std::chrono::steady_clock;

    struct Slot
    {
        std::shared_ptr<const FeatureDescription> description;
        Value value;
        std::map<std::int64_t, Value> valueOf; ///< of per-entry features, as far as ever written
        Value lastComputed;
        std::size_t selector = none;
        std::vector<std::size_t> selected;
        mutable std::set<std::size_t> readers;
        Clock::time_point commandEnd;
    };

    void linkSelectors();
    void noteReader(std::size_t reader, std::size_t index) const;
    void evaluateRules(std::size_t index) const;
    void touch(std::size_t index, ChangeSet& changes);
    void touchReaders(const std::set<std::size_t>& readers, ChangeSet& changes);
    const Value& stored(const Slot& slot, std::int64_t entry) const;
    std::int64_t key(std::size_t selector) const;
    ZebErrorType legalise(std::size_t index, Rounding rounding, Value& value) const;
    ZebErrorType legaliseEntry(std::size_t index, Value& value) const;

    std::deque<Slot> m_slots;
    std::unordered_map<std::string_view, std::size_t> m_indexes;
    std::deque<std::string> m_names;
    mutable std::set<std::size_t> m_streamingReaders;
    bool m_streaming = false;
    int m_depth = 0;
};

} // namespace sim

#pragma once

#include "State.h"

namespace sim {

class ChangeSet;

/// What a camera does by itself after a value has changed or a command was run: it reads the other
/// features and moves them along. Observers are told of what that changes.
class Reaction : public State
{
public:
    Reaction(FeatureStore& store, ChangeSet& changes);

    /// Stores a value whatever the rules say; a missing feature is left out.
    void set(std::string_view name, const Value& value);
    void setAt(std::string_view name, std::int64_t entry, const Value& value);
    /// Moves a value inside its range (downwards to the grid), or to the first available entry.
    void fit(std::string_view name);
    void setStreaming(bool streaming);

private:
    FeatureStore& m_target;
    ChangeSet& m_changes;
};

} // namespace sim

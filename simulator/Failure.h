#pragma once

#include "Value.h"

#include <ZebCPP/ZebCPP.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <utility>

namespace sim {

/// How one call of an SDK operation goes wrong. Made by the named functions; what does not apply to
/// an operation (a text length for a command) leaves the call unharmed.
struct Failure
{
    enum class Kind {
        None,         ///< nothing but the delay
        Refuse,       ///< the operation does nothing and answers the code
        Report,       ///< the operation works, but answers the code
        Substitute,   ///< another value is stored or answered, whatever the rules say
        EmptyLength,  ///< the length of a text or list is 0
        Grow,         ///< the second of two calls fills the buffer and says that more is needed
        Unterminated, ///< a text fills the buffer without a terminator
        HugeLength,   ///< the length is 2^32 - 1
        NullEntries,  ///< lists of texts or features hold null pointers
        Throw,        ///< std::runtime_error comes out of the operation
        Lose,         ///< the camera is lost for good, from this call on
    };
    static constexpr std::size_t kindCount = 11;

    Kind kind = Kind::None;
    ZebErrorType code = ZebErrorOther;
    std::function<Value(const Value&)> substitute; ///< each bound of a range by itself
    std::optional<std::pair<Value, Value>> bounds; ///< for a range, in its place
    std::chrono::milliseconds delay{0}; ///< before the call; for Lose before each later call too

    static Failure refuse(ZebErrorType code = ZebErrorOther);
    static Failure report(ZebErrorType code = ZebErrorOther);
    static Failure value(Value other);
    static Failure value(std::function<Value(const Value&)> change);
    /// Answers these bounds of a range, while the camera goes by its own.
    static Failure range(Value minimum, Value maximum);
    static Failure slow(std::chrono::milliseconds delay);
    static Failure lose(std::chrono::milliseconds delayPerCall = {},
                        ZebErrorType code = ZebErrorBadHandle);
    static Failure of(Kind kind);
};

} // namespace sim

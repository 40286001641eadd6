#include "Failure.h"

#include <utility>

namespace sim {

Failure Failure::of(Kind kind)
{
    Failure failure;
    failure.kind = kind;
    return failure;
}

Failure Failure::refuse(ZebErrorType code)
{
    Failure failure = of(Kind::Refuse);
    failure.code = code;
    return failure;
}

Failure Failure::report(ZebErrorType code)
{
    Failure failure = of(Kind::Report);
    failure.code = code;
    return failure;
}

Failure Failure::value(Value other)
{
    return value([other = std::move(other)](const Value&) { return other; });
}

Failure Failure::value(std::function<Value(const Value&)> change)
{
    Failure failure = of(Kind::Substitute);
    failure.substitute = std::move(change);
    return failure;
}

Failure Failure::range(Value minimum, Value maximum)
{
    Failure failure = value([](const Value& original) { return original; });
    failure.bounds = {std::move(minimum), std::move(maximum)};
    return failure;
}

Failure Failure::slow(std::chrono::milliseconds delay)
{
    Failure failure;
    failure.delay = delay;
    return failure;
}

Failure Failure::lose(std::chrono::milliseconds delayPerCall, ZebErrorType code)
{
    Failure failure = of(Kind::Lose);
    failure.delay = delayPerCall;
    failure.code = code;
    return failure;
}

} // namespace sim

#pragma once

#include "Failure.h"
#include "Occurrence.h"
#include "Operations.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <random>
#include <string>
#include <vector>

namespace sim {

/// Decides for each call through the SDK whether and how it goes wrong. Thread-safe.
///
///     failures.add("Width", Operation::SetValue, Failure::refuse(), Occurrence::nth(3));
///     failures.add(anyFeature, Operations::all(), Failure::refuse(),
///                  Occurrence::randomly(0.01, seed));
class FailureInjector
{
public:
    static constexpr const char* anyFeature = "*";

    /// Every rule counts the calls that it matches; of the rules that strike, the oldest wins.
    void add(const std::string& feature, Operations operations, Failure failure,
             Occurrence occurrence = Occurrence::always());
    void clear();

    std::uint64_t injected(Failure::Kind kind) const;

    Failure next(const std::string& feature, Operation operation);

private:
    struct Rule
    {
        std::string feature;
        Operations operations;
        Failure failure;
        Occurrence occurrence;
        std::mt19937_64 random;
        std::uint64_t calls = 0;

        bool strikes();
    };

    std::atomic<bool> m_active{false};
    std::array<std::atomic<std::uint64_t>, Failure::kindCount> m_injected{};
    std::mutex m_mutex;
    std::vector<Rule> m_rules;
};

} // namespace sim

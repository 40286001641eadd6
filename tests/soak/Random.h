#pragma once

#include <cstdint>
#include <initializer_list>
#include <iterator>

/// Numbers that depend on the seed alone, on every platform and library.
class Random
{
public:
    explicit Random(std::uint64_t seed)
        : m_state(seed)
    {
    }

    std::uint64_t next()
    {
        m_state += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    int below(int limit) { return static_cast<int>(next() % static_cast<std::uint64_t>(limit)); }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool oneIn(int times) { return below(times) == 0; }

    template <typename Container> const auto& pick(const Container& items)
    {
        return *std::next(std::begin(items), below(static_cast<int>(std::size(items))));
    }
    template <typename Item> Item pick(std::initializer_list<Item> items)
    {
        return *std::next(items.begin(), below(static_cast<int>(items.size())));
    }

private:
    std::uint64_t m_state;
};

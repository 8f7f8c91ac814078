#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

/// The same numbers from the same seed with every standard library, whose distributions may differ.
class FarmRandom {
public:
    explicit FarmRandom(std::uint32_t seed)
        : m_engine(seed)
    { }

    /// 0 to count - 1; count is at least 1.
    int below(int count) { return int(m_engine() % std::uint64_t(count)); }
    std::size_t indexOf(std::size_t size) { return std::size_t(m_engine() % size); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename Table>
    const auto &pick(const Table &table)
    {
        return table[indexOf(std::size(table))];
    }

private:
    std::mt19937_64 m_engine;
};

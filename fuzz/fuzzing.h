#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// The engine calls it with one input after the other.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

inline std::string_view asText(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

/// What must hold for every input; where it does not, the engine keeps the input.
inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

#pragma once

#include <cstddef>
#include <cstdint>

namespace TFramework {

/// Lets templates send over the link of a program, which shares it under its name.
/// `send` copies the payload and returns false when there is no link or the message is refused.
struct TSendEntry {
    void *owner = nullptr;
    bool (*send)(void *owner, std::uint32_t command, const char *payload, std::size_t size,
                 std::uint32_t param) = nullptr;
};

} // namespace TFramework

#pragma once

#include <cstdint>
#include <string>

/// Tells whether a file is still the one that was read: what one look at its folder's entry says. Equal stamps are those
/// of a file that nobody has written since.
struct FileStamp {
    bool exists = false;
    std::int64_t size = 0; ///< bytes
    std::int64_t modified = 0; ///< milliseconds since 1970

    static constexpr std::int64_t kUnsettled = -1; ///< no file's time
    static FileStamp of(const std::string &path);
    /// Whether the file was written so short a time ago that the next write may have the same time.
    bool isFresh() const;

    bool operator==(const FileStamp &) const = default;
};

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace TFramework {

/// The characters that end a folder's name here.
inline constexpr std::string_view kSeparators =
    std::filesystem::path::preferred_separator == '/' ? "/" : "/\\";

/// Path of a UTF-8 text; empty where this system has no such path.
std::filesystem::path toNativePath(const std::string &text);
/// The other way round.
std::string fromNativePath(const std::filesystem::path &path);

} // namespace TFramework

#include "nativepath.h"

#include <system_error>

namespace TFramework {

namespace {

// Bytes, and longer than any path that a system opens. Each folder in a path takes memory of its own, and a farm may name
// millions.
constexpr std::size_t kLongestPath = 4096;

} // namespace

std::filesystem::path toNativePath(const std::string &text)
{
    // The system would read a text with a zero up to there only, and so name another file.
    if (text.size() > kLongestPath || text.find('\0') != std::string::npos)
        return {};
    try {
        return std::filesystem::path(std::u8string(text.begin(), text.end()));
    } catch (const std::system_error &) { // no valid UTF-8, on a system whose paths are UTF-16
        return {};
    }
}

std::string fromNativePath(const std::filesystem::path &path)
{
    try {
        const std::u8string text = path.u8string();
        return std::string(text.begin(), text.end());
    } catch (const std::system_error &) {
        return {};
    }
}

} // namespace TFramework

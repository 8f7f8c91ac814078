#include "nativepath.h"

#include <system_error>

namespace TFramework {

std::filesystem::path toNativePath(const std::string &text)
{
    // The system would read such a text up to its zero only, and so name another file.
    if (text.find('\0') != std::string::npos)
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

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace TFramework {

/// Text functions that the farm's libraries share.
class TStringHelper {
public:
    /// Replaces every `from` by `to`, left to right; an empty `from` changes nothing.
    static std::string Replace(const std::string &text, const std::string &from, const std::string &to);
    /// Cuts a text at its separators, keeping empty values: n separators give n + 1 values, an empty one cuts nothing.
    static std::vector<std::string> TokenizeString(std::string_view text, std::string_view separator);
    /// Decodes RFC 4648 base64 up to the first '='; passes characters outside the alphabet over and needs no padding.
    static std::string FromBase64(std::string_view text);
    /// Cuts a list of masks at its ';', trims blanks round them and leaves empty ones out.
    static std::vector<std::string> DecodeFramesMask(const std::string &masks);
};

} // namespace TFramework

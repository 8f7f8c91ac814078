#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace TFramework {

/// Text helpers shared by the farm's libraries.
class TStringHelper {
public:
    /// Every occurrence of `from` replaced by `to`, left to right; an empty `from` changes nothing.
    static std::string Replace(const std::string &text, const std::string &from, const std::string &to);
    /// The values between separators, empty ones kept: n separators give n + 1 values. An empty
    /// separator cuts nothing.
    static std::vector<std::string> TokenizeString(std::string_view text, std::string_view separator);
    /// RFC 4648 base64 with padding, on one line.
    static std::string ToBase64(std::string_view bytes);
    /// Characters outside the alphabet are passed over and missing padding is allowed; decoding ends at the first '='.
    static std::string FromBase64(std::string_view text);
    /// The masks of a list separated by ';', blanks round them trimmed and empty ones left out.
    static std::vector<std::string> DecodeFramesMask(const std::string &masks);
};

} // namespace TFramework

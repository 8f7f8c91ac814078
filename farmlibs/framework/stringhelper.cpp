#include "stringhelper.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace TFramework {

namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::uint8_t kNoValue = 0xFF;

/// Value of each base64 character by its byte, kNoValue outside the alphabet.
constexpr std::array<std::uint8_t, 256> makeValues()
{
    std::array<std::uint8_t, 256> values{};
    values.fill(kNoValue);
    for (std::size_t i = 0; i < kAlphabet.size(); ++i)
        values[static_cast<unsigned char>(kAlphabet[i])] = static_cast<std::uint8_t>(i);
    return values;
}

constexpr std::array<std::uint8_t, 256> kValues = makeValues();

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

} // namespace

std::string TStringHelper::Replace(const std::string &text, const std::string &from, const std::string &to)
{
    if (from.empty())
        return text;
    std::string result;
    std::size_t begin = 0;
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, begin)) {
        result.append(text, begin, at - begin).append(to);
        begin = at + from.size();
    }
    return result.append(text, begin);
}

std::vector<std::string> TStringHelper::TokenizeString(std::string_view text, std::string_view separator)
{
    if (separator.empty())
        return {std::string(text)};
    std::vector<std::string> values;
    std::size_t begin = 0;
    for (std::size_t at = text.find(separator); at != text.npos; at = text.find(separator, begin)) {
        values.emplace_back(text.substr(begin, at - begin));
        begin = at + separator.size();
    }
    values.emplace_back(text.substr(begin));
    return values;
}

std::string TStringHelper::FromBase64(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3 + 3);
    std::uint32_t bits = 0;
    int count = 0;
    for (const char c : text.substr(0, text.find('='))) {
        const std::uint32_t value = kValues[static_cast<unsigned char>(c)];
        if (value == kNoValue)
            continue;
        bits = bits << 6 | value;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> count & 0xFF);
        }
    }
    return bytes;
}

std::vector<std::string> TStringHelper::DecodeFramesMask(const std::string &masks)
{
    std::vector<std::string> result;
    for (const std::string &mask : TokenizeString(masks, ";")) {
        const std::string_view text = trimmed(mask);
        if (!text.empty())
            result.emplace_back(text);
    }
    return result;
}

} // namespace TFramework

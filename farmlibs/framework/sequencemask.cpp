#include "filesystem.h"

#include "nativepath.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

namespace TFramework {

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::size_t kMaxFieldDigits = 32;

/// Where the frame number stands in the file name of a mask.
struct Field {
    std::size_t begin = 0;
    std::size_t length = 0;
    std::size_t digits = 0;
};

bool isLetterOrDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::optional<Field> runFieldAt(std::string_view name, std::size_t begin)
{
    const std::size_t end = std::min(name.find_first_not_of(name[begin], begin), name.size());
    const std::size_t length = end - begin;
    // "logo@2x.png" and "take#3.exr" are plain names.
    if (length == 1 && end < name.size() && isLetterOrDigit(name[end]))
        return std::nullopt;
    return Field{begin, length, length};
}

std::optional<Field> printfFieldAt(std::string_view name, std::size_t begin)
{
    const std::size_t end = name.find_first_not_of(kDigits, begin + 1);
    if (!name.substr(begin).starts_with("%0") || end == std::string_view::npos || name[end] != 'd')
        return std::nullopt;
    std::size_t digits = kMaxFieldDigits + 1; // stays when the number does not fit
    std::from_chars(name.data() + begin + 1, name.data() + end, digits);
    if (digits == 0)
        return std::nullopt;
    return Field{begin, end + 1 - begin, digits};
}

std::optional<Field> lastField(std::string_view name)
{
    std::optional<Field> last;
    std::size_t pos = 0;
    while ((pos = name.find_first_of("#@%", pos)) != std::string_view::npos) {
        const auto field = name[pos] == '%' ? printfFieldAt(name, pos) : runFieldAt(name, pos);
        if (field)
            last = field;
        pos += field ? field->length : 1;
    }
    return last;
}

std::string padded(std::int64_t frame, std::size_t digits)
{
    const auto bits = static_cast<std::uint64_t>(frame);
    const std::string number = std::to_string(frame < 0 ? 0 - bits : bits);
    const std::size_t zeros = digits > number.size() ? digits - number.size() : 0;
    return (frame < 0 ? "-" : "") + std::string(zeros, '0') + number;
}

std::size_t nameBegin(std::string_view path)
{
    return path.find_last_of(kSeparators) + 1;
}

/// A file name cut round its frame number, the sign counted to the number.
struct NumberedName {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t digits = 0;
    std::int32_t frame = 0;
};

std::optional<NumberedName> findNumber(std::string_view name)
{
    // The digits of ".mp4" or ".r3d" are no frame number.
    const std::size_t dot = name.rfind('.');
    const std::string_view stem = dot == 0 ? name : name.substr(0, dot);
    const std::size_t last = stem.find_last_of(kDigits);
    if (last == std::string_view::npos)
        return std::nullopt;
    const std::size_t firstDigit = stem.find_last_not_of(kDigits, last) + 1;

    std::int64_t number = 0;
    const auto parsed = std::from_chars(stem.data() + firstDigit, stem.data() + last + 1, number);
    if (parsed.ec != std::errc())
        return std::nullopt;
    // In "shot-0012" the '-' joins the name and the number; in "shot.-0012" it is a sign.
    const bool dash = firstDigit > 0 && stem[firstDigit - 1] == '-';
    const bool negative =
        dash && (firstDigit == 1 || stem[firstDigit - 2] == '.' || stem[firstDigit - 2] == '_');
    if (negative)
        number = -number;
    if (!std::in_range<std::int32_t>(number))
        return std::nullopt;
    return NumberedName{negative ? firstDigit - 1 : firstDigit, last + 1, last + 1 - firstDigit,
                        static_cast<std::int32_t>(number)};
}

} // namespace

std::string TFileSystem::GetFileFromMask(const std::string &mask, std::int64_t frame)
{
    const std::size_t begin = nameBegin(mask);
    const auto field = lastField(std::string_view(mask).substr(begin));
    if (!field || field->digits > kMaxFieldDigits)
        return {};
    return std::string(mask).replace(begin + field->begin, field->length, padded(frame, field->digits));
}

std::string TFileSystem::GetSequenceMask(const std::string &path, bool keepPath, std::int32_t &frame)
{
    frame = 0;
    const std::size_t begin = nameBegin(path);
    const std::string name = path.substr(begin);
    const auto number = findNumber(name);
    if (!number || lastField(name))
        return {};
    const std::string mask =
        std::string(name).replace(number->begin, number->end - number->begin, number->digits, '#');
    // A number such as "-0", or a lone digit within a word, does not come back from its mask.
    if (GetFileFromMask(mask, number->frame) != name)
        return {};
    frame = number->frame;
    return keepPath ? path.substr(0, begin) + mask : mask;
}

} // namespace TFramework

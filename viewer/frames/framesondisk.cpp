#include "framesondisk.h"

#include <client_lib/tframesrange.h>
#include <framework/filesystem.h>
#include <helpers/directorylisting.h>
#include <image_library/iimagecore.h>

#include <algorithm>
#include <charconv>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

using TFramework::TFileSystem;

namespace {

bool isImage(const std::string &path)
{
    return TFileSystem::CheckFile(path) && TImageLibrary::IImageCore::Probe(path.c_str());
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// A number, or the one character in front.
std::string_view leadingPart(std::string_view text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    return text.substr(0, std::max<std::size_t>(1, static_cast<std::size_t>(end - text.begin())));
}

std::optional<std::int32_t> frameBetween(const std::string &path, const MaskEnds &ends,
                                         const std::string &mask)
{
    if (path.size() <= ends.before.size() + ends.after.size() || !path.starts_with(ends.before)
        || !path.ends_with(ends.after))
        return std::nullopt;
    std::int32_t frame = 0;
    const char *const end = path.data() + path.size() - ends.after.size();
    const auto parsed = std::from_chars(path.data() + ends.before.size(), end, frame);
    if (parsed.ec != std::errc() || parsed.ptr != end || TFileSystem::GetFileFromMask(mask, frame) != path)
        return std::nullopt;
    return frame;
}

} // namespace

std::optional<MaskEnds> endsOf(const std::string &mask)
{
    // Two numbers differ where they end, a number and its negative where they begin, whatever the library's masks are.
    const std::string one = TFileSystem::GetFileFromMask(mask, 1);
    const std::string two = TFileSystem::GetFileFromMask(mask, 2);
    const std::string negative = TFileSystem::GetFileFromMask(mask, -1);
    const auto begin = std::mismatch(one.begin(), one.end(), negative.begin(), negative.end()).first;
    const auto end = std::mismatch(one.begin(), one.end(), two.begin(), two.end()).first;
    if (begin == one.end() || end == one.end() || end < begin)
        return std::nullopt;
    return MaskEnds{{one.begin(), begin}, {end + 1, one.end()}};
}

std::optional<std::int32_t> frameOf(const std::string &path, const std::string &mask)
{
    const auto ends = endsOf(mask);
    return ends ? frameBetween(path, *ends, mask) : std::nullopt;
}

std::set<long> framesOnDisk(const std::string &mask)
{
    std::set<long> frames;
    const auto ends = endsOf(mask);
    if (!ends)
        return frames;
    const std::string folder = TFileSystem::GetFilePath(mask);
    // As the mask writes its folder, to be compared with what comes of the mask.
    const std::size_t nameBegin = ends->before.find_first_not_of("/\\", folder.size());
    const std::string path = ends->before.substr(0, nameBegin);
    for (const std::string &name : FarmHelpers::listDirectory(folder.empty() ? "." : folder)) {
        const auto frame = frameBetween(path + name, *ends, mask);
        if (frame && frames.size() < TClientLib::TFramesRange::kMaxFrames
            && TFileSystem::CheckFile(path + name))
            frames.insert(*frame);
    }
    return frames;
}

std::optional<std::int32_t> firstFrameOnDisk(const std::string &mask)
{
    const std::set<long> frames = framesOnDisk(mask);
    return frames.empty() ? std::nullopt : std::optional(static_cast<std::int32_t>(*frames.begin()));
}

bool comesBefore(const std::string &name, const std::string &other)
{
    std::string_view a = name;
    std::string_view b = other;
    while (!a.empty() && !b.empty()) {
        const std::string_view x = leadingPart(a);
        const std::string_view y = leadingPart(b);
        const bool numbers = isDigit(x.front()) && isDigit(y.front());
        const std::size_t zerosX = numbers ? std::min(x.find_first_not_of('0'), x.size()) : 0;
        const std::size_t zerosY = numbers ? std::min(y.find_first_not_of('0'), y.size()) : 0;
        const std::string_view valueX = x.substr(zerosX);
        const std::string_view valueY = y.substr(zerosY);
        if (numbers && valueX.size() != valueY.size())
            return valueX.size() < valueY.size();
        if (valueX != valueY)
            return valueX < valueY;
        a.remove_prefix(x.size());
        b.remove_prefix(y.size());
    }
    return a.empty() != b.empty() ? a.empty() : name < other;
}

std::string firstImageOf(const std::string &folder)
{
    std::string single;
    std::vector<std::string> names = FarmHelpers::listDirectory(folder);
    std::sort(names.begin(), names.end(), comesBefore);
    for (const std::string &name : names) {
        std::string path = TFileSystem::JoinPath(folder, name);
        std::int32_t frame = 0;
        const bool isNumbered = !TFileSystem::GetSequenceMask(path, true, frame).empty();
        if ((!isNumbered && !single.empty()) || !isImage(path))
            continue;
        if (isNumbered)
            return path;
        single = std::move(path);
    }
    return single;
}

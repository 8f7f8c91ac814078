#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// What the program's own image library tells beyond the interface that a farm's must have; asked where it is there.
namespace FarmHelpers {

/// Tells why a file does not load, in the words of the library.
struct LoadFailure {
    /// As in TImageLibrary::TLoadFailure; None also where the library does not tell.
    enum Kind { None, Missing, Forbidden, NoImage, Damaged, TooLarge, Unsupported };

    Kind kind = None;
    std::string reason; ///< in English; empty where the library does not tell
};

/// Of the last call of `Core`, an IImageCore.
template <typename Core>
LoadFailure lastFailure()
{
    if constexpr (requires { Core::GetLoadFailure(); }) {
        const auto &failure = Core::GetLoadFailure();
        return {LoadFailure::Kind(failure.kind), failure.reason};
    } else {
        return {};
    }
}

/// Tells what was read of a file, as TImageLibrary::TPartialLoad does.
struct PartialLoad {
    struct Box {
        std::int32_t x = 0;
        std::int32_t y = 0;
        std::int32_t width = 0;
        std::int32_t height = 0;

        bool operator==(const Box &other) const = default;
    };

    std::int64_t chunks = 0; ///< 0 of a file that was read as a whole
    std::int64_t unwritten = 0;
    std::int64_t damaged = 0;
    std::vector<Box> unread;

    bool isIncomplete() const { return chunks > 0; }
    /// Chunks that were read.
    std::int64_t sound() const { return chunks - unwritten - damaged; }
    /// Nothing that was written is damaged: the rest may come yet.
    bool isInTheMaking() const { return isIncomplete() && (unwritten > 0 || damaged == 0); }
    /// The part of a file in the making that is written, rounded down.
    int percentWritten() const { return chunks > 0 ? int(100 * (chunks - unwritten) / chunks) : 100; }
};

/// Has `Core`, an IImageCore, read what there is of a file; null where that is nothing, or it reads files as a whole only.
template <typename Core, typename Progress>
auto loadPartial(const char *path, const char *format, const std::set<std::string> &names,
                 const std::pair<Progress, void *> &progress, PartialLoad &load)
    -> decltype(Core::Load(path, format, names, progress.first, progress.second))
{
    load = {};
    if constexpr (requires { typename Core::PartialLoad; }) {
        typename Core::PartialLoad told;
        told.progress = progress.first;
        told.user = progress.second;
        auto *image = Core::LoadPartial(path, format, names, told);
        if (!image || told.isWhole)
            return image;
        load = {told.chunks, told.unwritten, told.damaged, {}};
        for (const auto &box : told.unread)
            load.unread.push_back({box.x, box.y, box.width, box.height});
        return image;
    } else {
        return nullptr;
    }
}

/// `image` is a CTImage.
template <typename Image>
bool isDeep(const Image &image)
{
    if constexpr (requires { image.GetIsDeep(); })
        return image.GetIsDeep();
    else
        return false;
}

/// What a file holds of a channel: bytes per sample, 1 for floating point, samples per pixel.
struct StoredSamples {
    std::int32_t depth = 0;
    std::int32_t type = 0;
    std::int32_t samples = 0;
};

/// `channel` is a CTImageChannel; as its plane where the library does not tell.
template <typename Channel>
StoredSamples storedSamples(const Channel &channel)
{
    if constexpr (requires { channel.GetStoredBitDepth(); })
        return {channel.GetStoredBitDepth(), channel.GetStoredBitType(), channel.GetStoredBitSamples()};
    else
        return {channel.GetChannelBitDepth(), channel.GetChannelBitType(), channel.GetChannelBitSamples()};
}

} // namespace FarmHelpers

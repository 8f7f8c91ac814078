#pragma once

#include <cstdint>
#include <string>

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

#pragma once

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

} // namespace FarmHelpers

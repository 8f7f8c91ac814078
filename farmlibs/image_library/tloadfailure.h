#pragma once

#include <string>

namespace TImageLibrary {

/// Tells why a file does not load.
struct TLoadFailure {
    enum Kind {
        None, ///< it loads
        Missing,
        Forbidden, ///< it may not be read
        NoImage, ///< neither its bytes nor its name are an image's
        Damaged, ///< also cut short, or still being written
        TooLarge, ///< there is no memory for its pixels
        Unsupported, ///< sound, but of a kind that is not read here
    };

    Kind kind = None;
    std::string reason; ///< what was found, and where, in English, without the file's path
};

} // namespace TImageLibrary

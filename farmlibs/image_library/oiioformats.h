#pragma once

#include "sourcefile.h"

#include <cstdint>
#include <string>
#include <vector>

namespace TImageLibrary {

/// How the colour stands to its alpha when OpenImageIO has been asked to leave it as it is.
enum class OiioAlpha {
    AsTold, ///< as the attributes say
    Straight,
    Multiplied, ///< straight in the file, but multiplied all the same
};

/// Describes a format that OpenImageIO reads for this library.
struct OiioFormat {
    const char *name; ///< OpenImageIO's own
    std::uint64_t expansion; ///< most bytes of pixels that a byte of the file makes
    OiioAlpha alpha;
    bool (*recognises)(const SourceFile &file);
    /// Whether the file has its end, or what its header announces; null for a decoder that takes well to a cut one.
    bool (*isWhole)(const SourceFile &file);
};

/// Find the format whose bytes the file begins with, null when there is none.
const OiioFormat *findFormat(const SourceFile &file);
const OiioFormat *findFormat(const std::string &name);

/// Lists the extensions of the formats that this build of OpenImageIO has.
std::vector<std::string> oiioExtensions();

} // namespace TImageLibrary

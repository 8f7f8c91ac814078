#pragma once

#include "sourcefile.h"

#include <cstdint>
#include <string>
#include <vector>

namespace TImageLibrary {

/// A format that OpenImageIO reads for this library.
struct OiioFormat {
    const char *name; ///< OpenImageIO's own name
    std::uint64_t expansion; ///< most bytes of pixels that a byte of the file makes
    bool (*recognises)(const SourceFile &file);
    /// Whether the header announces something that opening the file should not be tried with, or the end is missing and
    /// the decoder would make it up; null when the decoder sees to both.
    bool (*isSound)(const SourceFile &file);
};

/// The format whose bytes the file begins with, null when there is none.
const OiioFormat *findFormat(const SourceFile &file);
const OiioFormat *findFormat(const std::string &name);

/// Extensions of the formats that this build of OpenImageIO has.
std::vector<std::string> oiioExtensions();

} // namespace TImageLibrary

#pragma once

#include "exrlayout.h"

#include <span>

namespace TImageLibrary {

/// Whether OpenEXR takes a chunk of the part that unpacks to less than the header speaks of.
bool takesShortChunks(const ExrFile &file, int part);

/// Throws when a chunk of such a part does not unpack to just the pixels of the box.
void checkChunk(const Imf::Header &header, const Imath::Box2i &box, std::span<const char> packed);

/// Throws when the last chunk of scan lines does not unpack to the pixels that the header speaks of. OpenEXR fills what
/// deflated lines or runs leave over with what stood in its memory before; most other compressions it checks itself.
void checkLastChunk(ExrFile &file, int part);

} // namespace TImageLibrary

#pragma once

#include "exrfile.h"

namespace TImageLibrary {

/// Throws when the last chunk of scan lines does not unpack to the pixels that the header speaks of. OpenEXR fills what
/// deflated lines or runs leave over with what stood in its memory before; most other compressions it checks itself.
void checkLastChunk(ExrFile &file, int part);

} // namespace TImageLibrary

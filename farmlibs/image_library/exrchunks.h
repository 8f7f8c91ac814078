#pragma once

#include "exrplan.h"

#include <functional>
#include <vector>

namespace TImageLibrary {

/// Throws when the last chunk of scan lines does not unpack to the pixels that the header speaks of. OpenEXR fills what
/// deflated lines or runs leave over with what stood in its memory before; most other compressions it checks itself.
void checkLastChunk(ExrFile &file, int part);

/// Whether the part's scan lines are stored just as the planes want them.
bool hasPlainLines(const ExrFile &file, int part, const std::vector<ExrTarget *> &targets);

/// Copies the channels out of plain scan lines into their planes; arguments and failure as in readPart().
void copyPlainLines(ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
                    const std::function<void(double)> &report);

} // namespace TImageLibrary

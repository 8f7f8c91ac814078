#pragma once

#include "exrplan.h"
#include "exrpresent.h"

#include <functional>
#include <vector>

namespace TImageLibrary {

/// Whether unpackPart() reads the part: plain, in runs or deflated, all samples there, in scan lines or tiles of one level.
bool canUnpack(const ExrFile &file, int part);

/// Unpacks the chunks that reach into the planes, by all threads at once; arguments and failure as in readPart(). False,
/// with nothing read, when OpenEXR's core interface does not take the file.
bool unpackPart(const ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
                const std::function<void(double)> &report, PresentChunks *present);

} // namespace TImageLibrary

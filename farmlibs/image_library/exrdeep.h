#pragma once

#include "exrplan.h"
#include "exrpresent.h"

#include <functional>
#include <vector>

namespace TImageLibrary {

/// Flattens a deep part's channels into their planes: OpenEXR puts the samples of each pixel together from front to back.
/// All `targets` are of that part. Without `present` every chunk is to be there: throws when the pixels are damaged.
void flattenPart(ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
                 const std::function<void(double)> &report, PresentChunks *present);

} // namespace TImageLibrary

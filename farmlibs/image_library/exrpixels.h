#pragma once

#include "exrplan.h"
#include "exrpresent.h"

#include <functional>
#include <vector>

namespace TImageLibrary {

/// Reads one part's channels into their planes, in bands of rows: `report` is told the fraction of bands done.
/// All `targets` are of that part. Without `present` every chunk is to be there: throws when the pixels are damaged.
void readPart(ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
              const std::function<void(double)> &report, PresentChunks *present);

} // namespace TImageLibrary

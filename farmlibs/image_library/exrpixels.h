#pragma once

#include "exrplan.h"

#include <functional>
#include <vector>

namespace TImageLibrary {

/// Reads one part's channels into their planes, in bands of rows: `report` is told the fraction of bands done.
/// All `targets` are of that part. Throws when the pixels are damaged.
void readPart(ExrFile &file, int part, const std::vector<ExrTarget *> &targets,
              const std::function<void(double)> &report);

} // namespace TImageLibrary

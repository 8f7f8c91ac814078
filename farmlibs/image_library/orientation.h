#pragma once

#include "ctimagechannel.h"

namespace TImageLibrary {

/// Whether an orientation, numbered as in TIFF and EXIF, lays the rows of the picture down as columns.
bool swapsSides(int orientation);

/// The picture upright; the orientations that are not 2 to 8 leave it as it is.
CTImageChannel upright(CTImageChannel channel, int orientation);

} // namespace TImageLibrary

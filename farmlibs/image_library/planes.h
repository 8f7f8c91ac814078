#pragma once

#include "ctimagechannel.h"

#include <OpenImageIO/typedesc.h>

#include <string>

/// What OpenImageIO's image functions do to planes, in their own memory or from one into another. They throw what it
/// says.
namespace TImageLibrary {

/// The type of a plane's samples.
OIIO::TypeDesc sampleType(const TPlaneFormat &format);

/// Fills the target with the source in its size, with a box filter.
void resizeChannel(const CTImageChannel &source, CTImageChannel &target);

/// Whether an orientation, numbered as in TIFF and EXIF, lays the rows of the picture down as columns.
bool swapsSides(int orientation);

/// The picture upright; the orientations that are not 2 to 8 leave it as it is.
CTImageChannel upright(CTImageChannel channel, int orientation);

/// One sample of each pixel of `whole` as a plane of its own.
CTImageChannel sampleOf(const CTImageChannel &whole, int index, const std::string &name);

/// Makes a colour and alpha of grey and alpha, which stand first in each pixel of four samples.
void spreadGrey(CTImageChannel &channel);

/// Gives pixels of four samples full alpha.
void makeOpaque(CTImageChannel &channel);

/// Takes the alpha out of the colour again, in pixels of four samples, to the nearest integer. Light where there is no
/// alpha stays as it is.
void divideByAlpha(CTImageChannel &channel);

} // namespace TImageLibrary

#pragma once

#include "compositelayers.h"
#include "imageframe.h"

#include <image_library/ctimage.h>

#include <memory>
#include <string>

// A frame's planes point into the image and copy nothing: the image stays until they are uploaded or copied. Null when
// the image does not hold the layer as planes that GL takes.

/// A texture for each member.
std::unique_ptr<ImageFrame> buildFrame(const TImageLibrary::CTImage &image, const CompositeLayer &composite);

/// One texture with the layer of that name, or the image's default layer when there is none.
std::unique_ptr<ImageFrame> buildFrame(const TImageLibrary::CTImage &image, const std::string &layerName);

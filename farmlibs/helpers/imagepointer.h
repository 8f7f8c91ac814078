#pragma once

#include <image_library/iimagecore.h>

#include <memory>

namespace FarmHelpers {

/// Ends an image the library's own way.
struct ImageDestroyer {
    void operator()(TImageLibrary::CTImage *image) const { TImageLibrary::IImageCore::DestroyImage(image); }
};

/// An image that the library has handed over, with its owner.
using ImagePointer = std::unique_ptr<TImageLibrary::CTImage, ImageDestroyer>;

} // namespace FarmHelpers

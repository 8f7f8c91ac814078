#pragma once

namespace TImageLibrary {

class CTImageChannel;
class ImageLoader;

/// What the module that holds OpenImageIO offers.
struct OiioModule {
    const ImageLoader &loader;
    /// See resizeChannel().
    void (*resize)(const CTImageChannel &source, CTImageChannel &target);
};

// Each module is loaded when it is first asked for; null when it is not to be had.

const ImageLoader *exrModule();
const OiioModule *oiioModule();

} // namespace TImageLibrary

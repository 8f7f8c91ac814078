#pragma once

namespace TImageLibrary {

class CTImageChannel;
class ImageLoader;

/// Offers what the module that holds OpenImageIO can do.
struct OiioModule {
    const ImageLoader &loader;
    /// See resizeChannel().
    void (*resize)(const CTImageChannel &source, CTImageChannel &target);
};

// Each module is loaded when it is first asked for; null when it cannot be loaded.

const ImageLoader *exrModule();
const OiioModule *oiioModule();

} // namespace TImageLibrary

#pragma once

#include "ctimagelayer.h"

#include <cstdint>
#include <vector>

namespace TImageLibrary {

/// Holds a decoded image: the layers that were asked for. Made by IImageCore::Load() and Resize(), released by
/// IImageCore::DestroyImage().
class CTImage final {
public:
    /// `layers` must not be empty; width and height in pixels.
    CTImage(std::int32_t width, std::int32_t height, bool premultiplied, std::vector<CTImageLayer> layers,
            bool deep = false);

    /// Give the pixels of the picture (an EXR's display window). A channel may be smaller: ask the channel for its own
    /// size.
    std::int32_t GetWidth() const { return m_width; }
    std::int32_t GetHeight() const { return m_height; }

    /// Finds a layer; null when there is none of that name.
    const CTImageLayer *GetLayer(const char *name) const;
    /// Gives the colour's first layer ("", "R" or "Y"), else the first one that the file lists.
    const CTImageLayer *GetDefaultLayer() const;
    /// Lists the layers in the file's order, never empty.
    const std::vector<CTImageLayer> &GetLayers() const { return m_layers; }

    /// Tells whether the first row in memory is the picture's top row, not its bottom row, which is GL's
    /// order. This library's planes always begin at the top, so a display maps t = 0 to the upper edge.
    bool GetIsYFlipped() const { return true; }
    /// Tells whether the colour has been multiplied by its alpha.
    bool GetIsPremultiplied() const { return m_premultiplied; }
    /// Tells whether the file holds any number of samples in each pixel, of which one was made. An addition to the
    /// interface: a farm's own library need not have it.
    bool GetIsDeep() const { return m_deep; }

    /// Makes a copy of the size given in pixels with a box filter, subsampled channels in proportion. False, with `out`
    /// null, when the size is not positive or there is no memory for it.
    bool Resize(std::int32_t width, std::int32_t height, CTImage *&out) const;

private:
    std::int32_t m_width = 0;
    std::int32_t m_height = 0;
    bool m_premultiplied = false;
    bool m_deep = false;
    std::vector<CTImageLayer> m_layers;
};

} // namespace TImageLibrary

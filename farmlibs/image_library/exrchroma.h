#pragma once

#include "exrplan.h"

#include <ImfRgba.h>

#include <functional>
#include <vector>

namespace TImageLibrary {

/// Makes the colour of luminance and chroma, by the filters and weights with which OpenEXR reads such files itself.
class ExrChroma final {
public:
    /// `colors` are the targets of one prefix in a part, and outlive this; what is not read of their sources is 0 with
    /// `fill` Zero. Throws when the file cannot fill the part.
    ExrChroma(const ExrFile &file, const std::vector<ExrTarget *> &colors, CTImageChannel::Fill fill);

    /// The stored channels, to be read before the colour is made.
    std::vector<ExrTarget> &sources() { return m_sources; }
    void makeColors(const std::function<void(double)> &report);

private:
    void store(int row, const std::vector<Imf::Rgba> &line);

    const Imf::Header &m_header;
    std::vector<ExrTarget *> m_colors;
    std::vector<ExrTarget> m_sources; // luminance, redness, blueness over the data window
};

} // namespace TImageLibrary

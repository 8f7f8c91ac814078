#pragma once

#include "exrfile.h"

namespace TImageLibrary {

/// Lists what a part offers, without the names of its layers. Luminance and chroma are offered as the colour that they
/// make; a deep part that lacks what its samples are put together by offers nothing.
std::vector<ExrChannel> channelsOf(const Imf::Header &header, int part);

bool isDeep(const Imf::Header &header);

/// Names of the channels that a Chroma channel is made of.
struct ChromaNames {
    std::string luma;
    std::string redness;
    std::string blueness;

    /// `channel` ends in R, G or B.
    static ChromaNames of(const std::string &channel);
};

} // namespace TImageLibrary

#pragma once

#include "imageloader.h"

namespace TImageLibrary {

/// Everything but OpenEXR: one unnamed layer with one interleaved channel, or, when the pixels are no grey and no
/// colour, a layer for each channel. Only the first image of a file with several is read.
class OiioLoader final : public ImageLoader {
public:
    std::vector<std::string> extensions() const override;
    const char *probe(const SourceFile &file) const override;
    bool knows(const std::string &format) const override;
    std::set<std::string> layers(const SourceFile &file, const std::string &format) const override;
    CTImage load(const SourceFile &file, const std::string &format, const std::set<std::string> &names,
                 Progress &progress) const override;
};

} // namespace TImageLibrary

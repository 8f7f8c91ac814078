#pragma once

#include "imageloader.h"

namespace TImageLibrary {

/// Reads OpenEXR files: a layer for each channel, decoded straight into its plane. Deep pixels are flattened, and
/// luminance and chroma become colour.
class ExrLoader final : public ImageLoader {
public:
    /// Starts the pool of threads that OpenEXR decodes with, one for the process.
    ExrLoader();

    std::vector<std::string> extensions() const override;
    const char *probe(const SourceFile &file) const override;
    bool knows(const std::string &format) const override;
    std::set<std::string> layers(const SourceFile &file, const std::string &format) const override;
    CTImage load(const SourceFile &file, const std::string &format, const std::set<std::string> &names,
                 Progress &progress) const override;
    CTImage loadPartial(const SourceFile &file, const std::set<std::string> &names, Progress &progress,
                        TPartialLoad &load) const override;
};

} // namespace TImageLibrary

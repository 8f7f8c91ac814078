#pragma once

#include "ctimagechannel.h"
#include "progress.h"
#include "sourcefile.h"

#include <OpenImageIO/imageio.h>

#include <memory>
#include <string>
#include <vector>

namespace TImageLibrary {

struct OiioFormat;

/// Reads the first image of a file through OpenImageIO. Everything throws when the file is damaged.
class OiioFile final {
public:
    OiioFile(const SourceFile &file, const OiioFormat &format);

    /// Pixels of the upright picture.
    std::int32_t width() const;
    std::int32_t height() const;
    /// Of what read() gives: interleaved colours are straight in any case.
    bool isPremultiplied() const;
    /// The layers: one without a name when the pixels can be shown as they are.
    std::vector<std::string> layers() const;
    /// Reads some of layers(), each into a channel of its name.
    std::vector<CTImageChannel> read(const std::vector<std::string> &layers, Progress &progress);

private:
    bool isInterleaved() const;
    /// Whether the decoder hands over colours multiplied by their alpha.
    bool isMultiplied() const;
    int orientation() const;
    void readInto(CTImageChannel &pixels, Progress &progress);
    CTImageChannel readInterleaved(Progress &progress);

    const OiioFormat &m_format;
    std::unique_ptr<OIIO::ImageInput> m_input;
    OIIO::ImageSpec m_spec;
};

} // namespace TImageLibrary

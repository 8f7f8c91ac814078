#pragma once

#include "exrstream.h"
#include "progress.h"
#include "sourcefile.h"

#include <ImathVec.h>
#include <ImfHeader.h>
#include <ImfMultiPartInputFile.h>
#include <ImfPixelType.h>

#include <cstdint>
#include <string>
#include <vector>

namespace TImageLibrary {

/// Tells what the samples of a channel are made of.
enum class ExrOrigin {
    Stored,
    Chroma, ///< R, G or B, of the part's luminance and chroma
    Deep, ///< any number of samples in each pixel
};

/// Names a channel of a part.
struct ExrChannel {
    std::string layer; ///< unique in the file
    std::string name; ///< unique in its part
    int part = 0;
    Imf::PixelType type = Imf::HALF;
    Imath::V2i sampling{1, 1};
    ExrOrigin origin = ExrOrigin::Stored;
};

/// Reads the headers of an OpenEXR file. Deep parts count where their pixels can be flattened.
class ExrFile final {
public:
    /// Throws when the headers are damaged or of a newer OpenEXR, or there is nothing to show. `progress` is of the load that
    /// it is opened for, and outlives it; null for other uses.
    static ExrFile open(const SourceFile &file, const Progress *progress = nullptr);

    /// Part after part, the deep ones last, each part's in the order of its header.
    const std::vector<ExrChannel> &channels() const { return m_channels; }
    const SourceFile &source() const { return m_source; }
    const Imf::Header &header(int part) const { return m_parts.header(part); }
    Imf::MultiPartInputFile &parts() { return m_parts; }
    const Progress *progress() const { return m_progress; }
    /// Whether its load keeps to one thread for now.
    bool isAlone() const { return m_progress && m_progress->isAlone(); }
    /// Chunks that OpenEXR decodes at once, 0 for one after the other.
    int threads() const { return m_threads; }

    int version() const { return m_parts.version(); }
    int partCount() const { return m_parts.parts(); }
    /// Where the tables of chunks end, which stand behind the headers one after the other.
    std::uint64_t tablesEnd() const { return m_tablesEnd; }

    /// Throws when the part has not all its pixels.
    void checkComplete(int part) const;
    /// Throws when the part's chunks are larger than the file can fill.
    void checkChunks(int part) const;
    /// How many bytes of pixels a byte of the part can make.
    std::uint64_t expansion(int part) const;
    /// Rows of pixels that the part compresses together.
    int chunkRows(int part) const;
    bool isTiled(int part) const;
    bool isDeep(int part) const;
    /// The part in words.
    std::string nameOf(int part) const;

private:
    ExrFile(const SourceFile &file, const Progress *progress);
    void listChannels(bool deep);

    const SourceFile &m_source;
    const Progress *m_progress;
    int m_threads;
    ExrStream m_stream;
    Imf::MultiPartInputFile m_parts;
    std::uint64_t m_tablesEnd;
    std::vector<ExrChannel> m_channels;
};

/// Threads of OpenEXR's pool that decode at once; a single one would only add its hand-overs.
int exrPoolThreads();

} // namespace TImageLibrary

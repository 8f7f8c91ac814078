#pragma once

#include "sourcefile.h"
#include "zipunpacker.h"

#include <ImathVec.h>
#include <openexr.h>

#include <cstdint>
#include <memory>
#include <span>
#include <type_traits>

namespace TImageLibrary {

/// Reads a file's chunks through OpenEXR's core interface, which, other than the C++ one, lets many threads read at once and
/// has its decompression replaced.
class ExrCore final {
public:
    /// The file outlives this.
    explicit ExrCore(const SourceFile &file);

    /// Whether the core interface takes the headers, which it is stricter with than the C++ one.
    bool isOpen() const { return m_context != nullptr; }
    exr_const_context_t context() const { return m_context.get(); }

private:
    struct Finish {
        void operator()(exr_context_t context) const { exr_finish(&context); }
    };
    std::unique_ptr<std::remove_pointer_t<exr_context_t>, Finish> m_context;
};

/// Tells where a chunk is: the first line of pixels, or the column and row of a tile.
struct ChunkPlace {
    bool isTile = false;
    Imath::V2i at;
};

/// The samples of a chunk, line after line, each with its channels one after the other.
struct ChunkSamples {
    ByteSpan bytes;
    bool isSplit = false; ///< all low bytes stand before all high ones
};

/// Unpacks chunks of a part, one after the other, in memory that it keeps for the next one.
class ChunkUnpacker final {
public:
    /// `core` is open and outlives this; the part is stored without compression, in runs or deflated.
    ChunkUnpacker(const ExrCore &core, int part);
    ~ChunkUnpacker();
    ChunkUnpacker(const ChunkUnpacker &) = delete;
    ChunkUnpacker &operator=(const ChunkUnpacker &) = delete;

    /// What it gives stands until the next call. Throws when the chunk is damaged or does not make `size` bytes.
    ChunkSamples unpack(const ChunkPlace &place, std::size_t size);

private:
    static exr_result_t decompress(exr_decode_pipeline_t *pipeline);
    bool prepare(const exr_chunk_info_t &chunk);

    exr_const_context_t m_context;
    int m_part;
    exr_decode_pipeline_t m_pipeline{};
    bool m_isPrepared = false;
    ZipUnpacker m_zip;
};

} // namespace TImageLibrary

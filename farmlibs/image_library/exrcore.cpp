#include "exrcore.h"

#include "imageerror.h"

#include <string>

namespace TImageLibrary {

namespace {

/// Without one, the library prints every error.
void ignoreError(exr_const_context_t, exr_result_t, const char *) { }

std::int64_t readFrom(exr_const_context_t, void *file, void *buffer, std::uint64_t size, std::uint64_t offset,
                      exr_stream_error_func_ptr_t)
{
    return std::int64_t(static_cast<const SourceFile *>(file)->read(offset, buffer, size));
}

std::int64_t sizeOf(exr_const_context_t, void *file)
{
    return std::int64_t(static_cast<const SourceFile *>(file)->size());
}

} // namespace

ExrCore::ExrCore(const SourceFile &file)
{
    exr_context_initializer_t initializer = EXR_DEFAULT_CONTEXT_INITIALIZER;
    initializer.error_handler_fn = ignoreError;
    initializer.user_data = const_cast<SourceFile *>(&file);
    initializer.read_fn = readFrom;
    initializer.size_fn = sizeOf;
    initializer.flags = EXR_CONTEXT_FLAG_SILENT_HEADER_PARSE | EXR_CONTEXT_FLAG_DISABLE_CHUNK_RECONSTRUCTION;
    exr_context_t context = nullptr;
    if (exr_start_read(&context, file.path().c_str(), &initializer) == EXR_ERR_SUCCESS)
        m_context.reset(context);
}

ChunkUnpacker::ChunkUnpacker(const ExrCore &core, int part)
    : m_context(core.context())
    , m_part(part)
{ }

ChunkUnpacker::~ChunkUnpacker()
{
    exr_decoding_destroy(m_context, &m_pipeline);
}

ChunkSamples ChunkUnpacker::unpack(const ChunkPlace &place, std::size_t size)
{
    exr_chunk_info_t chunk{};
    const exr_result_t found = place.isTile
        ? exr_read_tile_chunk_info(m_context, m_part, place.at.x, place.at.y, 0, 0, &chunk)
        : exr_read_scanline_chunk_info(m_context, m_part, place.at.y, &chunk);
    if (found != EXR_ERR_SUCCESS || chunk.unpacked_size != size || chunk.packed_size > size || !prepare(chunk)
        || exr_decoding_run(m_context, m_part, &m_pipeline) != EXR_ERR_SUCCESS)
        throw ImageError(TLoadFailure::Damaged,
                         (place.isTile ? "damaged tile in row " : "damaged lines from line ")
                             + std::to_string(place.at.y));
    // What would not shrink is stored as it is.
    const bool isSplit = chunk.packed_size != chunk.unpacked_size;
    const void *samples = isSplit ? m_pipeline.unpacked_buffer : m_pipeline.packed_buffer;
    return {{static_cast<const std::uint8_t *>(samples), size}, isSplit};
}

bool ChunkUnpacker::prepare(const exr_chunk_info_t &chunk)
{
    if (m_isPrepared)
        return exr_decoding_update(m_context, m_part, &chunk, &m_pipeline) == EXR_ERR_SUCCESS;
    m_isPrepared = exr_decoding_initialize(m_context, m_part, &chunk, &m_pipeline) == EXR_ERR_SUCCESS
        && exr_decoding_choose_default_routines(m_context, m_part, &m_pipeline) == EXR_ERR_SUCCESS;
    m_pipeline.decoding_user_data = this;
    m_pipeline.decompress_fn = decompress;
    m_pipeline.unpack_and_convert_fn = nullptr;
    return m_isPrepared;
}

exr_result_t ChunkUnpacker::decompress(exr_decode_pipeline_t *pipeline)
{
    const exr_chunk_info_t &chunk = pipeline->chunk;
    if (chunk.packed_size == chunk.unpacked_size)
        return EXR_ERR_SUCCESS;
    const ByteSpan packed(static_cast<const std::uint8_t *>(pipeline->packed_buffer), chunk.packed_size);
    const std::span<std::uint8_t> room(static_cast<std::uint8_t *>(pipeline->unpacked_buffer),
                                       chunk.unpacked_size);
    ZipUnpacker &zip = static_cast<ChunkUnpacker *>(pipeline->decoding_user_data)->m_zip;
    bool isWhole = false;
    if (chunk.compression == EXR_COMPRESSION_RLE)
        isWhole = expandRuns(packed, room);
    else if (chunk.compression == EXR_COMPRESSION_ZIP || chunk.compression == EXR_COMPRESSION_ZIPS)
        isWhole = zip.inflate(packed, room);
    if (!isWhole)
        return EXR_ERR_CORRUPT_CHUNK;
    sumDifferences(room);
    return EXR_ERR_SUCCESS;
}

} // namespace TImageLibrary

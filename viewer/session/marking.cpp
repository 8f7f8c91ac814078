#include "marking.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {

bool fits(std::int64_t frame)
{
    return frame >= std::numeric_limits<std::int32_t>::min()
        && frame <= std::numeric_limits<std::int32_t>::max();
}

std::optional<MarkedChunk> keyOf(const ChunkMap &chunks, int frame)
{
    const auto found = chunkOf(chunks, frame);
    if (found == chunks.end())
        return std::nullopt;
    return MarkedChunk{found->first, found->second.id};
}

} // namespace

void Marking::setChunks(const std::vector<TClientLib::TChunk> &chunks)
{
    m_chunks.clear();
    for (const TClientLib::TChunk &chunk : chunks) {
        const auto [first, last] = std::minmax({chunk.getStart(), chunk.getEnd()}); // values, no references
        if (fits(first) && fits(last))
            m_chunks[std::int32_t(last)] = {chunk.getChunkId(), std::int32_t(first), chunk.getState()};
    }
}

void Marking::apply(int frame, const MarkRequest &request)
{
    const auto chunk = keyOf(m_chunks, frame);
    if (request.addChunk && chunk)
        m_markedChunks.insert(*chunk);
    if (request.addFrame)
        m_markedFrames.insert(frame);
    if (request.removeChunk && chunk)
        m_markedChunks.remove(*chunk);
    if (request.removeFrame)
        m_markedFrames.remove(frame);
}

void Marking::toggleFrame(int frame)
{
    if (!m_markedFrames.remove(frame))
        m_markedFrames.insert(frame);
}

void Marking::toggleChunkOf(int frame)
{
    const auto key = keyOf(m_chunks, frame);
    if (key && !m_markedChunks.remove(*key))
        m_markedChunks.insert(*key);
}

void Marking::clear()
{
    m_markedChunks.clear();
    m_markedFrames.clear();
}

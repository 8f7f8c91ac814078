#pragma once

#include <QtCore/QSet>

#include <cstdint>
#include <map>
#include <utility>

/// One chunk of a job as the viewer sees it.
struct FrameChunk {
    std::int64_t id = 0;
    std::int32_t firstFrame = 0;
    std::int32_t state = 0; ///< as its record says; 1 shows grey on the marker strip
};

/// Chunks by their last frame: a frame's chunk is the one with the smallest key that is not below it.
using ChunkMap = std::map<std::int32_t, FrameChunk>;

/// A chunk's key in the map and its identifier.
using MarkedChunk = std::pair<std::int32_t, std::int64_t>;
using MarkedChunks = QSet<MarkedChunk>;
using MarkedFrames = QSet<std::int32_t>;

/// What a pick on the timeline asks for beside its frame; nothing by default.
struct MarkRequest {
    bool addChunk = false;
    bool addFrame = false;
    bool removeChunk = false;
    bool removeFrame = false;

    bool operator==(const MarkRequest &other) const = default;
};

/// End of the map for a frame past the last chunk, or between the chunks that are known.
inline ChunkMap::const_iterator chunkOf(const ChunkMap &chunks, long frame)
{
    if (chunks.empty() || frame > chunks.rbegin()->first)
        return chunks.end();
    const auto found = chunks.lower_bound(static_cast<std::int32_t>(frame));
    return found->second.firstFrame <= frame ? found : chunks.end();
}

#pragma once

#include <client_lib/tchunk.h>
#include <viewer/frames/chunkmap.h>

#include <vector>

/// The bad frames and chunks that the user has marked in one viewer window.
class Marking final {
public:
    const ChunkMap &chunks() const { return m_chunks; }
    const MarkedChunks &markedChunks() const { return m_markedChunks; }
    const MarkedFrames &markedFrames() const { return m_markedFrames; }

    /// Builds the chunk map anew, of several records of a chunk by the last; the marks stay.
    void setChunks(const std::vector<TClientLib::TChunk> &chunks);

    void markFrame(int frame) { m_markedFrames.insert(frame); }
    void unmarkFrame(int frame) { m_markedFrames.remove(frame); }
    void toggleFrame(int frame);
    // A frame of no known chunk does nothing.
    void markChunkOf(int frame);
    void unmarkChunkOf(int frame);
    void toggleChunkOf(int frame);
    void clear();

private:
    ChunkMap m_chunks;
    MarkedChunks m_markedChunks;
    MarkedFrames m_markedFrames;
};

#pragma once

#include <client_lib/tchunk.h>
#include <viewer/frames/chunkmap.h>

#include <QtCore/QString>

#include <vector>

/// The bad frames and chunks that the user has marked in one viewer window.
class Marking final {
public:
    const ChunkMap &chunks() const { return m_chunks; }
    const MarkedChunks &markedChunks() const { return m_markedChunks; }
    const MarkedFrames &markedFrames() const { return m_markedFrames; }

    /// Builds the chunk map anew, of several records of a chunk by the last; the marks stay.
    void setChunks(const std::vector<TClientLib::TChunk> &chunks);

    /// Adds and removes; never toggles. The chunk is the frame's, if it is of a known one.
    void apply(int frame, const MarkRequest &request);
    void toggleFrame(int frame);
    void toggleChunkOf(int frame);
    void clear();

    /// Write the marks as people type frames, "1003,1007-1010"; empty without any.
    QString framesText() const;
    QString chunksText() const; ///< identifiers
    QString framesOfChunksText() const;

private:
    ChunkMap m_chunks;
    MarkedChunks m_markedChunks;
    MarkedFrames m_markedFrames;
};

#pragma once

#include "framestrip.h"

#include <viewer/frames/chunkmap.h>

#include <cstdint>
#include <vector>

/// Shows which frames and chunks are marked, as it was last told.
class imagesMarkerWidget : public FrameStrip {
    Q_OBJECT

public:
    explicit imagesMarkerWidget(QWidget *parent = nullptr);

    void setChunks(const ChunkMap &chunks);
    void setMarkedChunks(const MarkedChunks &chunks);
    void setMarkedFrames(const MarkedFrames &frames);

private:
    /// Frames of a chunk that is shown in a colour.
    struct Shade {
        std::int32_t first = 0;
        std::int32_t last = 0;
        bool marked = false;
    };

    void shadeChunks();
    void drawColumn(QPainter &painter, const FrameColumn &column, QSize frame) const override;
    bool hasMarkedFrame(const FrameColumn &column) const;
    /// Finds the colour of the column's chunks; null for none.
    const QColor *chunkColor(const FrameColumn &column) const;

    ChunkMap m_chunks;
    MarkedChunks m_markedChunks;
    std::vector<Shade> m_shades; ///< in order, none overlaps the next
    std::vector<std::int32_t> m_markedFrames; ///< in order
};

#include "imagesmarkerwidget.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <limits>

namespace {

constexpr std::int32_t kShownState = 1;

const QColor kMarkedFrame(200, 200, 0);
const QColor kMarkedChunk(255, 125, 0);
const QColor kShownChunk(100, 100, 100);
const QColor kUnmarked(0, 0, 0);

} // namespace

imagesMarkerWidget::imagesMarkerWidget(QWidget *parent)
    : FrameStrip(parent)
{ }

void imagesMarkerWidget::setChunks(const ChunkMap &chunks)
{
    m_chunks = chunks;
    shadeChunks();
}

void imagesMarkerWidget::setMarkedChunks(const MarkedChunks &chunks)
{
    m_markedChunks = chunks;
    shadeChunks();
}

void imagesMarkerWidget::setMarkedFrames(const MarkedFrames &frames)
{
    m_markedFrames.assign(frames.begin(), frames.end());
    std::sort(m_markedFrames.begin(), m_markedFrames.end());
}

void imagesMarkerWidget::drawColumn(QPainter &painter, const FrameColumn &column, QSize frame) const
{
    const QColor *color = hasMarkedFrame(column) ? &kMarkedFrame : chunkColor(column);
    if (!color && column.existing > 0)
        color = &kUnmarked;
    if (color)
        painter.fillRect(column.x, 0, frame.width(), frame.height() - 1, *color);
}

bool imagesMarkerWidget::hasMarkedFrame(const FrameColumn &column) const
{
    const auto first = std::lower_bound(m_markedFrames.begin(), m_markedFrames.end(), column.first);
    const auto end = std::upper_bound(first, m_markedFrames.end(), column.last);
    return std::any_of(first, end, [this](std::int32_t frame) { return scale().contains(frame); });
}

void imagesMarkerWidget::shadeChunks()
{
    m_shades.clear();
    std::int64_t free = std::numeric_limits<std::int32_t>::min();
    for (const auto &[lastFrame, chunk] : m_chunks) {
        const std::int64_t first = std::max<std::int64_t>(chunk.firstFrame, free);
        const bool marked = m_markedChunks.contains({lastFrame, chunk.id});
        if (first <= lastFrame && (marked || chunk.state == kShownState))
            m_shades.push_back({static_cast<std::int32_t>(first), lastFrame, marked});
        free = std::int64_t{lastFrame} + 1;
    }
}

const QColor *imagesMarkerWidget::chunkColor(const FrameColumn &column) const
{
    // Where frames of several chunks share the column, a mark is not to be hidden by the others.
    const QColor *color = nullptr;
    const auto endsBefore = [](const Shade &shade, std::int32_t frame) { return shade.last < frame; };
    auto shade = std::lower_bound(m_shades.begin(), m_shades.end(), column.first, endsBefore);
    for (; shade != m_shades.end() && shade->first <= column.last; ++shade) {
        if (shade->marked)
            return &kMarkedChunk;
        color = &kShownChunk;
    }
    return color;
}

#include "imagesmarkerwidget.h"

#include <QtGui/QPainter>

#include <algorithm>

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
}

void imagesMarkerWidget::setMarkedChunks(const MarkedChunks &chunks)
{
    m_markedChunks = chunks;
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

const QColor *imagesMarkerWidget::chunkColor(const FrameColumn &column) const
{
    // Where frames of several chunks share the column, a mark is not to be hidden by the others.
    const QColor *color = nullptr;
    for (auto chunk = m_chunks.lower_bound(column.first); chunk != m_chunks.end(); ++chunk) {
        const auto &[lastFrame, record] = *chunk;
        if (record.firstFrame <= std::min(lastFrame, column.last)) {
            if (m_markedChunks.contains({lastFrame, record.id}))
                return &kMarkedChunk;
            if (record.state == kShownState)
                color = &kShownChunk;
        }
        if (lastFrame >= column.last)
            break;
    }
    return color;
}

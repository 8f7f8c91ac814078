#include "imagesallocationwidget.h"

#include <framework/filesystem.h>
#include <viewer/frames/framecache.h>

#include <QtGui/QPainter>

#include <algorithm>

using TFramework::TFileSystem;

namespace {

/// Names made and looked up in one paint. In a longer range only every so many frames are asked for, one of each column at
/// least: a run of cached frames still shows.
constexpr std::int64_t kLookups = 4000;

const QColor kInVideoMemory(0, 200, 0);
const QColor kInMainMemory(200, 200, 0);
const QColor kNotCached(0, 0, 0);

} // namespace

imagesAllocationWidget::imagesAllocationWidget(QWidget *parent)
    : FrameStrip(parent)
{ }

void imagesAllocationWidget::setFileMask(const std::string &mask)
{
    m_fileMask = mask;
}

void imagesAllocationWidget::setCache(const FrameCache *cache)
{
    m_cache = cache;
}

void imagesAllocationWidget::drawColumn(QPainter &painter, const FrameColumn &column, QSize frame) const
{
    // A pixel wider than the frame, so that neighbours form a bar; where several frames share a pixel it is enough.
    const int width = column.first == column.last ? frame.width() + 1 : 1;
    painter.fillRect(column.x, 0, width, frame.height(), cacheColor(column));
}

QColor imagesAllocationWidget::cacheColor(const FrameColumn &column) const
{
    if (!m_cache)
        return kNotCached;
    const std::int64_t step = 1 + scale().frameCount() / kLookups;
    bool inMainMemory = false;
    for (std::int64_t number = column.first; number <= column.last; number += step) {
        const ImageFrame *frame = m_cache->find(TFileSystem::GetFileFromMask(m_fileMask, number));
        if (frame && frame->inVideoMemory)
            return kInVideoMemory;
        inMainMemory = inMainMemory || frame;
    }
    return inMainMemory ? kInMainMemory : kNotCached;
}

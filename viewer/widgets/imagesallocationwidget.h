#pragma once

#include "framestrip.h"

#include <QtGui/QColor>

#include <string>

class FrameCache;

/// Shows which frames of the sequence are in the viewer's frame cache, and in which memory.
class imagesAllocationWidget : public FrameStrip {
    Q_OBJECT

public:
    explicit imagesAllocationWidget(QWidget *parent = nullptr);

    /// Sets the mask that names each frame's file.
    void setFileMask(const std::string &mask);
    /// Sets the cache to ask, not owned; null shows nothing as cached.
    void setCache(const FrameCache *cache);

private:
    void drawColumn(QPainter &painter, const FrameColumn &column, QSize frame) const override;
    QColor cacheColor(const FrameColumn &column) const;

    std::string m_fileMask;
    const FrameCache *m_cache = nullptr;
};

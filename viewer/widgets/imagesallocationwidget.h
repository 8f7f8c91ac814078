#pragma once

#include <QtWidgets/QWidget>

#include <set>
#include <string>

class FrameCache;

class imagesAllocationWidget : public QWidget {
    Q_OBJECT

public:
    explicit imagesAllocationWidget(QWidget *parent = nullptr);

    QSize sizeHint() const override;

    void setFrames(std::set<long> _frames);
    void setRange(long startFrame, long endFrame);
    /// Mask from which a frame's file name is made.
    void setFileMask(const std::string &mask);
    /// Not owned; null shows nothing as cached.
    void setCache(const FrameCache *cache);
};

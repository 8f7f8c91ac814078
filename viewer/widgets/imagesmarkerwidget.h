#pragma once

#include "chunkmap.h"

#include <QtWidgets/QWidget>

#include <set>

class imagesMarkerWidget : public QWidget {
    Q_OBJECT

public:
    explicit imagesMarkerWidget(QWidget *parent = nullptr);

    QSize sizeHint() const override;

    void setFrames(std::set<long> _frames);
    void setRange(long startFrame, long endFrame);
    void setChunks(const ChunkMap &chunks);
    void setMarkedChunks(const MarkedChunks &chunks);
    void setMarkedFrames(const MarkedFrames &frames);
};

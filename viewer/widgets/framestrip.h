#pragma once

#include "framescale.h"

#include <QtWidgets/QWidget>

#include <set>

class QPainter;

/// A thin strip beside the timeline, on the same scale: colours each frame and hatches the missing ones. Takes no input;
/// setters do not repaint.
class FrameStrip : public QWidget {
public:
    QSize sizeHint() const override;

    void setFrames(std::set<long> _frames);
    void setRange(long startFrame, long endFrame);
    /// What is known of the frames; incomplete and broken ones are hatched too.
    void setStates(const FrameStates &states);

protected:
    explicit FrameStrip(QWidget *parent);

    void paintEvent(QPaintEvent *event) override;
    const FrameScale &scale() const { return m_scale; }

private:
    /// Colours a column, from left to right; `frame` is a frame's width and the height of the strip's black inside.
    virtual void drawColumn(QPainter &painter, const FrameColumn &column, QSize frame) const = 0;

    FrameScale m_scale;
};

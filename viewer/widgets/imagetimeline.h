#pragma once

#include "framescale.h"

#include <QtGui/QFont>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <cstdint>
#include <set>
#include <vector>

class QPainter;

/// Rules the frames under the picture: ticks and numbers of the existing ones, the current one in red with its number on a
/// flag; the missing, the incomplete and the broken ones hatched, each in its way. The left button scrubs and picks; Shift, Control and Alt make a pick, of the current frame too, a request to
/// mark or unmark, which the signals carry. Setters do not repaint.
class imageTimeline : public QWidget {
    Q_OBJECT

public:
    explicit imageTimeline(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    /// What is known of the frames.
    void setStates(const FrameStates &states);
    /// Counts the frames from the first to the last, gaps included; at least 1.
    Q_INVOKABLE size_t getLength() const;

public Q_SLOTS:
    void setFrames(std::set<long> _frames);
    void setRange(long startFrame, long endFrame);
    bool setByFrame(long step);
    void setPosition(long frame);
    /// Steps to the next existing frame; false at the end, and while the user drags.
    bool moveNext();
    bool movePrevious();
    void moveFirst();
    void moveLast();

Q_SIGNALS:
    /// Tells that the user or a move has settled on a frame.
    void frameChanged(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame);
    /// Tells that a drag has reached another existing frame, or begins on the current one with a request.
    void frameScrubbed(int frame, bool addChunk, bool addFrame, bool removeChunk, bool removeFrame);
    /// A drag has begun or ended.
    void held(bool held);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    std::int32_t frameAt(const QMouseEvent &event) const;
    bool move(std::int64_t step);
    bool moveTo(std::int32_t frame);
    void setDragging(bool dragging);
    void dragTo(std::int32_t frame, bool begins);
    void show(std::int32_t frame);
    void drawTicks(QPainter &painter, const std::vector<FrameColumn> &columns, int bottom) const;
    int lastRow() const;
    void drawRuler();
    void drawCurrent(QPainter &painter, int bottom) const;
    void drawFrames(QPainter &painter, const std::vector<FrameColumn> &columns, int bottom) const;

    const QFont m_font;
    const QFont m_flagFont;
    FrameScale m_scale;
    QPixmap m_ruler; ///< all but the current frame; null or of another size until it is drawn anew
    std::int32_t m_byFrame = 1;
    std::int32_t m_position = 1;
    std::int32_t m_scrubFrame = 1;
    bool m_dragging = false;
};

#include "framestrip.h"

#include "framepatterns.h"

#include <QtGui/QPainter>

namespace {

constexpr int kHatchHeight = 15;

}

FrameStrip::FrameStrip(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize FrameStrip::sizeHint() const
{
    return {0, 20};
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the viewer hands its set over
void FrameStrip::setFrames(std::set<long> _frames)
{
    m_scale.setFrames(_frames);
}

void FrameStrip::setRange(long startFrame, long endFrame)
{
    m_scale.setRange(startFrame, endFrame);
}

void FrameStrip::setStates(const FrameStates &states)
{
    m_scale.setStates(states);
}

void FrameStrip::paintEvent(QPaintEvent * /*event*/)
{
    const QRect inner = rect().adjusted(1, 1, -1, -1);
    const QSize frame(m_scale.columnWidth(width()), inner.height());
    QPainter painter(this);
    painter.fillRect(inner, Qt::black);
    for (const FrameColumn &column : m_scale.columns(width())) {
        drawColumn(painter, column, frame);
        if (column.worst != FrameState::Whole)
            painter.fillRect(column.x, inner.height() - kHatchHeight, frame.width(), kHatchHeight,
                             framePattern(column.worst));
    }
}

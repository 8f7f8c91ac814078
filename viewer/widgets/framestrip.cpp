#include "framestrip.h"

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

void FrameStrip::paintEvent(QPaintEvent * /*event*/)
{
    const QRect inner = rect().adjusted(1, 1, -1, -1);
    const QSize frame(m_scale.columnWidth(width()), inner.height());
    const QBrush missing(QColor(100, 100, 100), Qt::Dense3Pattern);
    QPainter painter(this);
    painter.fillRect(inner, Qt::black);
    for (const FrameColumn &column : m_scale.columns(width())) {
        drawColumn(painter, column, frame);
        if (column.hasMissing())
            painter.fillRect(column.x, inner.height() - kHatchHeight, frame.width(), kHatchHeight, missing);
    }
}

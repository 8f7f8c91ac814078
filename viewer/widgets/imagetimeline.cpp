#include "imagetimeline.h"

#include <viewer/frames/chunkmap.h>
#include <viewer/frames/framesteps.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <algorithm>
#include <limits>

namespace {

constexpr int kTickSpacing = 4;
constexpr int kTickLength = 10;
constexpr int kLineTop = 15;
constexpr int kBaseline = 10;
constexpr int kFlagPadding = 3;
// Darker than the line: the white number is to be read.
constexpr QColor kFlag(208, 0, 0);
constexpr QColor kCurrentShade(255, 10, 10, 46);

/// What the modifier keys that are down make of a pick.
MarkRequest currentRequest()
{
    const Qt::KeyboardModifiers keys = QGuiApplication::keyboardModifiers();
    const bool remove = keys.testFlag(Qt::AltModifier);
    const bool chunk = keys.testFlag(Qt::ShiftModifier);
    const bool frame = !chunk && keys.testFlag(Qt::ControlModifier);
    return {chunk && !remove, frame && !remove, chunk && remove, frame && remove};
}

std::int32_t clamped(std::int64_t value, std::int64_t lowest = std::numeric_limits<std::int32_t>::min())
{
    constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(value, lowest, kHighest));
}

} // namespace

imageTimeline::imageTimeline(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize imageTimeline::sizeHint() const
{
    return {0, 60};
}

size_t imageTimeline::getLength() const
{
    const auto &frames = m_scale.frames();
    return frames.size() < 2 ? 1 : static_cast<size_t>(std::int64_t{frames.back()} - frames.front() + 1);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the viewer hands its set over
void imageTimeline::setFrames(std::set<long> _frames)
{
    m_scale.setFrames(_frames);
}

void imageTimeline::setRange(long startFrame, long endFrame)
{
    m_scale.setRange(startFrame, endFrame);
}

bool imageTimeline::setByFrame(long step)
{
    m_byFrame = clamped(step, 1);
    return true;
}

void imageTimeline::setPosition(long frame)
{
    m_position = m_scrubFrame = clamped(frame);
}

bool imageTimeline::moveNext()
{
    return move(m_byFrame);
}

bool imageTimeline::movePrevious()
{
    return move(-std::int64_t{m_byFrame});
}

void imageTimeline::moveFirst()
{
    if (!m_scale.frames().empty())
        moveTo(m_scale.frames().front());
}

void imageTimeline::moveLast()
{
    if (!m_scale.frames().empty())
        moveTo(m_scale.frames().back());
}

bool imageTimeline::move(std::int64_t step)
{
    const std::optional<std::int64_t> frame = steppedFrame(m_scale.frames(), m_position, step);
    return frame && moveTo(static_cast<std::int32_t>(*frame));
}

bool imageTimeline::moveTo(std::int32_t frame)
{
    if (m_dragging || frame == m_position)
        return false;
    m_position = frame;
    show(frame);
    Q_EMIT frameChanged(frame, false, false, false, false);
    return true;
}

std::int32_t imageTimeline::frameAt(const QMouseEvent &event) const
{
    return m_scale.frameAt(event.position().toPoint().x(), width());
}

void imageTimeline::mousePressEvent(QMouseEvent *event)
{
    setDragging(event->button() == Qt::LeftButton);
    if (m_dragging)
        dragTo(frameAt(*event), true);
}

void imageTimeline::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging)
        dragTo(frameAt(*event), false);
}

void imageTimeline::mouseReleaseEvent(QMouseEvent *event)
{
    const bool picks = m_dragging && event->button() == Qt::LeftButton;
    setDragging(false);
    if (!picks)
        return;
    const std::int32_t under = frameAt(*event);
    const std::int32_t frame = under != m_position && m_scale.contains(under) ? under : m_scrubFrame;
    if (frame == m_position)
        return;
    m_position = frame;
    show(frame);
    const MarkRequest request = currentRequest();
    Q_EMIT frameChanged(frame, request.addChunk, request.addFrame, request.removeChunk, request.removeFrame);
}

void imageTimeline::hideEvent(QHideEvent *event)
{
    // The release will go elsewhere.
    setDragging(false);
    QWidget::hideEvent(event);
}

void imageTimeline::setDragging(bool dragging)
{
    if (dragging == m_dragging)
        return;
    m_dragging = dragging;
    Q_EMIT held(dragging);
}

void imageTimeline::dragTo(std::int32_t frame, bool begins)
{
    const MarkRequest request = currentRequest();
    const bool marksCurrent = begins && request != MarkRequest{};
    if ((frame == m_scrubFrame && !marksCurrent) || !m_scale.contains(frame))
        return;
    show(frame);
    Q_EMIT frameScrubbed(frame, request.addChunk, request.addFrame, request.removeChunk, request.removeFrame);
}

void imageTimeline::show(std::int32_t frame)
{
    m_scrubFrame = frame;
    update();
}

void imageTimeline::paintEvent(QPaintEvent * /*event*/)
{
    const QRect inner = rect().adjusted(1, 1, -1, -1);
    const std::vector<FrameColumn> columns = m_scale.columns(width());
    QPainter painter(this);
    painter.fillRect(inner, Qt::black);
    drawTicks(painter, columns, inner.bottom());
    drawFrames(painter, columns, inner.bottom());
    if (m_scale.inRange(m_scrubFrame))
        drawCurrent(painter, inner.bottom());
}

void imageTimeline::drawCurrent(QPainter &painter, int bottom) const
{
    const QColor red(255, 10, 10);
    const int x = m_scale.position(m_scrubFrame, width());
    if (m_scale.columnWidth(width()) >= kTickSpacing)
        painter.fillRect(x, kLineTop, m_scale.columnWidth(width()), bottom - kLineTop + 1, kCurrentShade);
    painter.setPen(QPen(red, 2));
    painter.drawLine(x, kLineTop, x, bottom);
    // Its number, on a flag that stays within the ruler.
    QFont font(QStringLiteral("Lato"), 7);
    font.setBold(true);
    painter.setFont(font);
    const QString number = QString::number(m_scrubFrame);
    const int length = painter.fontMetrics().horizontalAdvance(number) + 2 * kFlagPadding;
    const QRect flag(std::max(std::min(x - 1, width() - 1 - length), 1), 1, length, kLineTop);
    painter.fillRect(flag, kFlag);
    painter.setPen(Qt::white);
    painter.drawText(flag, Qt::AlignCenter, number);
}

void imageTimeline::drawTicks(QPainter &painter, const std::vector<FrameColumn> &columns, int bottom) const
{
    painter.setPen(QColor(200, 200, 200));
    int last = 0;
    for (const FrameColumn &column : columns) {
        if (column.existing == 0 || column.x - last < kTickSpacing)
            continue;
        painter.drawLine(column.x, bottom - kTickLength, column.x, bottom);
        last = column.x;
    }
}

void imageTimeline::drawFrames(QPainter &painter, const std::vector<FrameColumn> &columns, int bottom) const
{
    const QBrush missing(QColor(100, 100, 100), Qt::Dense3Pattern);
    const int columnWidth = m_scale.columnWidth(width());
    painter.setPen(QPen(QColor(150, 150, 150), 2));
    painter.setFont(QFont(QStringLiteral("Lato"), 7));
    const int spacing = painter.fontMetrics().horizontalAdvance(QStringLiteral("999.99"));
    int last = 0;
    for (const FrameColumn &column : columns) {
        if (column.hasMissing())
            painter.fillRect(column.x, 0, columnWidth, bottom, missing);
        if (column.existing == 0 || (column.x != 0 && column.x - last < spacing))
            continue;
        painter.drawLine(column.x, kLineTop, column.x, bottom);
        painter.drawText(QPointF(column.x, kBaseline), QString::number(column.firstExisting));
        last = column.x;
    }
}

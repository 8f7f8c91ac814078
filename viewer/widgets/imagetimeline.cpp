#include "imagetimeline.h"

#include "framepatterns.h"

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
constexpr int kPoints = 7; // of the numbers
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
    , m_font(QStringLiteral("Lato"), kPoints)
    , m_flagFont(QStringLiteral("Lato"), kPoints, QFont::Bold)
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
    m_ruler = {};
}

void imageTimeline::setRange(long startFrame, long endFrame)
{
    m_scale.setRange(startFrame, endFrame);
    m_ruler = {};
}

void imageTimeline::setStates(const FrameStates &states)
{
    m_scale.setStates(states);
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
    // A step of playback changes the line and its flag alone.
    const QSize pixels = size() * devicePixelRatio();
    if (m_ruler.size() != pixels) {
        m_ruler = QPixmap(pixels);
        m_ruler.setDevicePixelRatio(devicePixelRatio());
        m_ruler.fill(Qt::transparent);
        drawRuler();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_ruler);
    if (m_scale.inRange(m_scrubFrame))
        drawCurrent(painter, lastRow());
}

int imageTimeline::lastRow() const
{
    return height() - 2; // within a line that is left free all round
}

void imageTimeline::drawRuler()
{
    if (m_ruler.isNull())
        return;
    const std::vector<FrameColumn> columns = m_scale.columns(width());
    QPainter painter(&m_ruler);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), Qt::black);
    drawTicks(painter, columns, lastRow());
    drawFrames(painter, columns, lastRow());
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
    painter.setFont(m_flagFont);
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
    const int columnWidth = m_scale.columnWidth(width());
    painter.setPen(QPen(QColor(150, 150, 150), 2));
    painter.setFont(m_font);
    const int spacing = painter.fontMetrics().horizontalAdvance(QStringLiteral("999.99"));
    int last = 0;
    for (const FrameColumn &column : columns) {
        if (column.worst != FrameState::Whole)
            painter.fillRect(column.x, 0, columnWidth, bottom, framePattern(column.worst));
        if (column.existing == 0 || (column.x != 0 && column.x - last < spacing))
            continue;
        painter.drawLine(column.x, kLineTop, column.x, bottom);
        painter.drawText(QPointF(column.x, kBaseline), QString::number(column.firstExisting));
        last = column.x;
    }
}

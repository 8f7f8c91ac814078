#pragma once

#include <QtCore/QStringList>
#include <QtGui/QPainterPath>
#include <QtGui/QTextLayout>

#include <memory>
#include <vector>

class QColor;
class QImage;
class QPainter;
struct ImageFrame;

/// Wider than any line, and within what text layouts count up to.
inline constexpr int kWholeLines = 1 << 20;

/// Tells the HUD's lines of a frame, shortened in the middle to a width in logical pixels.
QStringList hudLines(const ImageFrame &frame, int width = kWholeLines);

/// Gives what lies between the text and any picture: as much of it as makes the text legible.
QColor hudPlate(const QColor &text);

/// Paints the lines on a plate that just holds each, in device pixels; no side is longer than the limit.
QImage hudImage(const QStringList &lines, const QColor &color, qreal devicePixelRatio, int longestSide);

/// Paints the lines at their places in the window, laid out once.
class HudText final {
public:
    void setLines(const QStringList &lines);
    void paint(QPainter &painter, const QColor &color) const;

private:
    std::size_t lineCount() const;
    QPointF placeOf(std::size_t line) const;

    QStringList m_lines;
    std::vector<std::unique_ptr<QTextLayout>> m_layouts;
    QPainterPath m_plate; ///< as wide as each line: the picture is what is looked at
};

/// Distance of the text from the left and top edge of the window, or of the picture, in logical pixels.
inline constexpr int kHudMargin = 15;
/// How far the plate reaches beyond the text on each side.
inline constexpr int kHudPadding = 6;

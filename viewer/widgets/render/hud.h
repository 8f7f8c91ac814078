#pragma once

#include <QtCore/QStringList>
#include <QtGui/QTextLayout>

#include <memory>
#include <vector>

class QColor;
class QImage;
class QPainter;
struct ImageFrame;

/// Tells the HUD's lines of a frame.
QStringList hudLines(const ImageFrame &frame);

/// Paints the lines on a transparent image that just holds them, in device pixels; no side is longer than the limit.
QImage hudImage(const QStringList &lines, const QColor &color, qreal devicePixelRatio, int longestSide);

/// Paints the lines at their places in the window, laid out once.
class HudText final {
public:
    void setLines(const QStringList &lines);
    void paint(QPainter &painter, const QColor &color) const;

private:
    QStringList m_lines;
    std::vector<std::unique_ptr<QTextLayout>> m_layouts;
};

/// Distance from the left and top edge of the window, or of the picture, in logical pixels.
inline constexpr int kHudMargin = 15;

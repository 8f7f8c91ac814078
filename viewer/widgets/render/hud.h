#pragma once

#include <QtCore/QStringList>
#include <QtGui/QTextLayout>

#include <memory>
#include <vector>

class QColor;
class QImage;
class QPainter;
struct ImageFrame;

/// What the HUD says of a frame, line by line.
QStringList hudLines(const ImageFrame &frame);

/// The lines on a transparent image that just holds them, in pixels of the device; no side is longer than the limit.
QImage hudImage(const QStringList &lines, const QColor &color, qreal devicePixelRatio, int longestSide);

/// The lines at their places in the window, laid out once.
class HudText final {
public:
    void setLines(const QStringList &lines);
    void paint(QPainter &painter, const QColor &color) const;

private:
    QStringList m_lines;
    std::vector<std::unique_ptr<QTextLayout>> m_layouts;
};

/// From the window's, or the picture's, left and top edge, in logical pixels.
inline constexpr int kHudMargin = 15;

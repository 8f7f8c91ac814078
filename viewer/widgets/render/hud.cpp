#include "hud.h"

#include <viewer/frames/imageframe.h>
#include <viewer/frames/incompletetext.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QFontMetrics>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/qopengl.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace {

constexpr int kFontSize = 15;
constexpr std::array<int, 8> kBaselines = {25, 47, 70, 92, 115, 137, 160, 182};
// Longer than any path the system opens; names in files are as long as their writers please.
constexpr std::size_t kLongestValue = 4096;

struct Hud {
    Q_DECLARE_TR_FUNCTIONS(Hud)
};

QFont hudFont()
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(kFontSize);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

/// A value stays on its line.
QString value(const std::string &text)
{
    QString line =
        QString::fromUtf8(text.data(), static_cast<qsizetype>(std::min(text.size(), kLongestValue)));
    for (QChar &character : line) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph)
            character = u' ';
    }
    return line;
}

QString pixelFormatLine(GLenum pixelType)
{
    switch (pixelType) {
    case GL_UNSIGNED_BYTE:
        return Hud::tr("Pixel format: U8");
    case GL_UNSIGNED_SHORT:
        return Hud::tr("Pixel format: U16");
    case GL_UNSIGNED_INT:
        return Hud::tr("Pixel format: U32");
    case GL_FLOAT:
        return Hud::tr("Pixel format: F32");
    case GL_HALF_FLOAT:
        return Hud::tr("Pixel format: F16");
    default:
        return Hud::tr("Pixel format: Unknown");
    }
}

QString bitFormatLine(int samples)
{
    switch (samples) {
    case 3:
        return Hud::tr("Bit format: RGB");
    case 4:
        return Hud::tr("Bit format: RGBA");
    case 1:
    case 2: // the second is alpha
        return Hud::tr("Bit format: Luminance");
    default:
        return Hud::tr("Bit format: Unknown");
    }
}

// Of the brightest to the darkest, as guidelines for screens ask of text.
constexpr double kContrast = 4.6;
constexpr double kThinnestPlate = 0.65;

double luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double greyOf(double luminance)
{
    const double value = std::clamp(luminance, 0.0, 1.0);
    return value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1.0 / 2.4) - 0.055;
}

/// Adds the plate of a line. Where lines meet, the plate is one.
void addPlate(QPainterPath &plate, const QRectF &line)
{
    plate.setFillRule(Qt::WindingFill);
    plate.addRect(line.adjusted(-kHudPadding, -kHudPadding, kHudPadding, kHudPadding));
}

} // namespace

QColor hudPlate(const QColor &text)
{
    // The worst picture is of the text's own kind: white below a light text, black below a dark one.
    const double flare = 0.05;
    const double light = luminance(text) + flare;
    const bool dark = light * light > flare * (1.0 + flare);
    const double opacity = dark ? 1.0 - greyOf(light / kContrast - flare) : greyOf(light * kContrast - flare);
    QColor plate(dark ? Qt::black : Qt::white);
    plate.setAlphaF(static_cast<float>(std::max(opacity, kThinnestPlate)));
    return plate;
}

QStringList hudLines(const ImageFrame &frame, int width)
{
    const PlaneSize size = frame.planeSizes.empty() ? PlaneSize() : frame.planeSizes.front();
    QStringList lines = {Hud::tr("File: %1").arg(value(frame.filePath)),
                         (frame.isDeep ? Hud::tr("File format: %1, deep") : Hud::tr("File format: %1"))
                             .arg(value(frame.formatName).toUpper()),
                         Hud::tr("Image size: %1x%2").arg(size.width).arg(size.height),
                         pixelFormatLine(frame.storedPixelType),
                         Hud::tr("Layers: %1").arg(value(frame.channelLayout)),
                         Hud::tr("Samples per channel: %1").arg(frame.storedComponents),
                         bitFormatLine(frame.storedComponents)};
    if (frame.partial.isIncomplete())
        lines += incompleteText(frame.partial);
    const QFontMetrics metrics(hudFont());
    for (QString &line : lines)
        line = metrics.elidedText(line, Qt::ElideMiddle, width);
    return lines;
}

QImage hudImage(const QStringList &lines, const QColor &color, qreal devicePixelRatio, int longestSide)
{
    const QString text = lines.join(u'\n') + u'\n';
    const QFont font = hudFont();
    const QRectF area(QPointF(kHudPadding, kHudPadding), QFontMetricsF(font).size(0, text));
    const QSizeF logical = area.size() + 2.0 * QSizeF(kHudPadding, kHudPadding);
    const QSize size = (logical * devicePixelRatio).toSize().boundedTo({longestSide, longestSide});
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    if (image.isNull())
        return image;
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    QPainterPath plate;
    const QFontMetricsF metrics(font);
    for (qsizetype i = 0; i < lines.size(); ++i)
        addPlate(plate,
                 {area.left(), area.top() + qreal(i) * metrics.lineSpacing(),
                  metrics.horizontalAdvance(lines[i]), metrics.height()});
    QPainter painter(&image);
    painter.fillPath(plate, hudPlate(color));
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(area, Qt::AlignLeft | Qt::TextDontClip, text);
    return image;
}

void HudText::setLines(const QStringList &lines)
{
    if (m_lines == lines)
        return;
    m_lines = lines;
    m_layouts.clear();
    m_plate = {};
    for (const QString &line : lines) {
        const auto &layout = m_layouts.emplace_back(std::make_unique<QTextLayout>(line, hudFont()));
        layout->setCacheEnabled(true);
        layout->beginLayout();
        layout->createLine();
        layout->endLayout();
    }
    for (std::size_t i = 0; i < lineCount(); ++i)
        addPlate(m_plate, m_layouts[i]->lineAt(0).naturalTextRect().translated(placeOf(i)));
}

void HudText::paint(QPainter &painter, const QColor &color) const
{
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setPen(color);
    painter.fillPath(m_plate, hudPlate(color));
    for (std::size_t i = 0; i < lineCount(); ++i)
        m_layouts[i]->draw(&painter, placeOf(i));
}

std::size_t HudText::lineCount() const
{
    return std::min(m_layouts.size(), kBaselines.size());
}

QPointF HudText::placeOf(std::size_t line) const
{
    return {kHudMargin, kBaselines[line] - m_layouts[line]->lineAt(0).ascent()};
}

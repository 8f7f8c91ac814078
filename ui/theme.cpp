#include "theme.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

constexpr double kTextContrast = 4.5;
constexpr double kEdgeContrast = 3.0;
// Colours are rounded on their way to the screen.
constexpr double kMargin = 0.1;
constexpr int kSteps = 40;

/// The relative luminance of WCAG 2.1.
double luminance(const QColor &colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor &from, const QColor &to, double share)
{
    return QColor::fromRgbF(float(from.redF() + (to.redF() - from.redF()) * share),
                            float(from.greenF() + (to.greenF() - from.greenF()) * share),
                            float(from.blueF() + (to.blueF() - from.blueF()) * share));
}

bool standsOut(const QColor &colour, std::initializer_list<QColor> surfaces, double ratio)
{
    return std::all_of(surfaces.begin(), surfaces.end(), [&](const QColor &surface) {
        return Theme::contrast(colour, surface) >= ratio + kMargin;
    });
}

/// The colour, or the one nearest to it on its way to black or white that stands out from all the surfaces.
QColor raised(const QColor &colour, std::initializer_list<QColor> surfaces, double ratio)
{
    for (int step = 0; step <= kSteps; ++step) {
        for (const QColor &end : {QColor(Qt::white), QColor(Qt::black)}) {
            const QColor tried = mixed(colour, end, double(step) / kSteps);
            if (standsOut(tried, surfaces, ratio))
                return tried;
        }
    }
    return luminance(*surfaces.begin()) < 0.18 ? Qt::white : Qt::black;
}

/// What is chosen: seen beside the surfaces, and read with the text on it.
void setSelection(QPalette &palette)
{
    const QColor chosen = palette.color(QPalette::Highlight);
    const QColor base = palette.color(QPalette::Base);
    for (const QColor &text :
         {palette.color(QPalette::HighlightedText), QColor(Qt::white), QColor(Qt::black)}) {
        for (int step = 0; step <= kSteps; ++step) {
            for (const QColor &end : {QColor(Qt::white), QColor(Qt::black)}) {
                const QColor tried = mixed(chosen, end, double(step) / kSteps);
                if (!standsOut(tried, {base}, kEdgeContrast) || !standsOut(tried, {text}, kTextContrast))
                    continue;
                palette.setColor(QPalette::Highlight, tried);
                palette.setColor(QPalette::HighlightedText, text);
                return;
            }
        }
    }
}

void setDisabled(QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor dim = mixed(palette.color(QPalette::WindowText), window, 0.5);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::PlaceholderText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, dim);
    palette.setColor(QPalette::Disabled, QPalette::Base, mixed(palette.color(QPalette::Base), window, 0.6));
    palette.setColor(QPalette::Disabled, QPalette::Button,
                     mixed(palette.color(QPalette::Button), window, 0.6));
    palette.setColor(QPalette::Disabled, QPalette::Dark, mixed(palette.color(QPalette::Dark), window, 0.6));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, palette.color(QPalette::Mid));
    // Takes the etched shadow from disabled texts.
    palette.setColor(QPalette::Disabled, QPalette::Light, QColor(0, 0, 0, 0));
}

/// The colours that a palette is made of, as 0xRRGGBB.
struct Scheme {
    QRgb window;
    QRgb base;
    QRgb button;
    QRgb text;
    QRgb highlight;
};

QPalette paletteOf(const Scheme &scheme)
{
    const QColor text(scheme.text);
    const QColor button(scheme.button);
    QPalette palette(text, button, Qt::white, Qt::black, Qt::gray, text, Qt::white, QColor(scheme.base),
                     QColor(scheme.window));
    palette.setColor(QPalette::Highlight, QColor(scheme.highlight));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, button);
    palette.setColor(QPalette::ToolTipText, text);
    return palette;
}

} // namespace

double Theme::contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

bool Theme::isDark(const QPalette &palette)
{
    return luminance(palette.color(QPalette::Window)) < luminance(palette.color(QPalette::WindowText));
}

QPalette Theme::readable(const QPalette &desktop)
{
    QPalette palette = desktop;
    const QColor window = desktop.color(QPalette::Active, QPalette::Window);
    const QColor base = desktop.color(QPalette::Active, QPalette::Base);
    const QColor button = desktop.color(QPalette::Active, QPalette::Button);
    const QColor text =
        raised(desktop.color(QPalette::Active, QPalette::WindowText), {window}, kTextContrast);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Button, button);
    palette.setColor(QPalette::AlternateBase, mixed(base, text, 0.04));
    palette.setColor(QPalette::Midlight, mixed(button, text, 0.08));
    palette.setColor(QPalette::Shadow, mixed(button, text, 0.18));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text,
                     raised(desktop.color(QPalette::Active, QPalette::Text), {base, window}, kTextContrast));
    palette.setColor(QPalette::ButtonText,
                     raised(desktop.color(QPalette::Active, QPalette::ButtonText),
                            {button, palette.color(QPalette::Midlight), palette.color(QPalette::Shadow)},
                            kTextContrast));
    palette.setColor(QPalette::PlaceholderText,
                     raised(mixed(text, window, 0.32), {window, base}, kTextContrast));
    palette.setColor(QPalette::Mid, mixed(window, text, 0.16));
    palette.setColor(QPalette::Dark,
                     raised(mixed(window, text, 0.38), {window, base, button}, kEdgeContrast));
    palette.setColor(QPalette::BrightText,
                     raised(mixed(window, text, 0.6), {window, base, button}, kEdgeContrast));
    palette.setColor(
        QPalette::Link,
        raised(desktop.color(QPalette::Active, QPalette::Highlight), {window, base, button}, kTextContrast));
    palette.setColor(QPalette::ToolTipText,
                     raised(desktop.color(QPalette::Active, QPalette::ToolTipText),
                            {desktop.color(QPalette::Active, QPalette::ToolTipBase)}, kTextContrast));
    palette.setColor(QPalette::Highlight, desktop.color(QPalette::Active, QPalette::Highlight));
    palette.setColor(QPalette::HighlightedText, desktop.color(QPalette::Active, QPalette::HighlightedText));
    setSelection(palette);
    setDisabled(palette);
    return palette;
}

QPalette Theme::neutral()
{
    return readable(paletteOf({0x2b2b2b, 0x202020, 0x3a3a3a, 0xdddddd, 0x3d72aa}));
}

QPalette Theme::plain(bool isDark, bool hasHighContrast)
{
    if (isDark && hasHighContrast)
        return paletteOf({0x000000, 0x000000, 0x000000, 0xffffff, 0x0063b1});
    if (hasHighContrast)
        return paletteOf({0xffffff, 0xffffff, 0xffffff, 0x000000, 0x003e8a});
    if (isDark)
        return paletteOf({0x2b2b2b, 0x202020, 0x3a3a3a, 0xececec, 0x3d72aa});
    return paletteOf({0xefefef, 0xffffff, 0xf7f7f7, 0x1f1f1f, 0x2a6fb0});
}

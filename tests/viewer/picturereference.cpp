#include "picturereference.h"

#include <viewer/frames/framedisplay.h>

#include <QtCore/QFloat16>
#include <QtGui/qopengl.h>

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace {

using Rgb = std::array<double, 3>;

std::shared_ptr<std::byte> guardedBytes(std::size_t size)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t whole = (size + page - 1) / page * page;
    void *base = mmap(nullptr, whole + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    std::byte *end = static_cast<std::byte *>(base) + whole;
    if (base == MAP_FAILED || mprotect(end, page, PROT_NONE) != 0)
        qFatal("no guarded memory");
    return {end - size, [=](std::byte *) { munmap(base, whole + page); }};
}

Rgba sampled(const Rgba &texel, const ImageFrame &frame)
{
    if (frame.textureCount == 1)
        return frame.components == 1 ? Rgba{texel[0], texel[0], texel[0], 1.0} : texel;
    if (frame.textureCount == 3)
        return {texel[0], texel[1], texel[2], 1.0};
    return frame.textureCount == 4 ? texel : Rgba{};
}

double power(double value, double exponent)
{
    return value >= 0.0 ? std::pow(value, exponent) : value;
}

/// Contrast about the middle, brightness, saturation.
void balance(Rgb &rgb, const Calibration &values)
{
    for (double &c : rgb)
        c = (c - 0.5) * std::max(double(values.contrast), 0.0) + 0.5 + (values.brightness - 1.0);
    const double grey = 0.2125 * rgb[0] + 0.7154 * rgb[1] + 0.0721 * rgb[2];
    for (double &c : rgb)
        c = grey + (c - grey) * values.saturation;
}

double levelled(double c, const Calibration &values)
{
    return (c - values.levelInputMin) / values.levelInputMax * values.levelOutputMax + values.levelOutputMin;
}

double clipped(double c, double v)
{
    const double knee = 1.0 - v;
    return c > knee ? knee + (1.0 - std::exp(-(c - knee) / v)) * v : c;
}

Rgba viewed(const Rgba &colour, int mode)
{
    const auto grey = [a = colour[3]](double c) { return Rgba{c, c, c, a}; };
    if (mode == 0)
        return colour;
    if (mode >= 1 && mode <= 4)
        return grey(colour[static_cast<std::size_t>(mode - 1)]);
    return mode == 5 ? grey(std::max({colour[0], colour[1], colour[2]})) : Rgba{};
}

Rgba shaded(const Rgba &texel, const ImageFrame &frame, const PictureLook &look)
{
    auto [r, g, b, a] = texel;
    Rgb rgb = {r, g, b};
    if (frame.isYCbCr)
        rgb = {r + g + b, -0.3441 * g + 1.7720 * b, 1.4020 * r - 0.7141 * g};
    if (!look.alphaOn && look.channelViewMode != 4)
        a = 1.0;
    for (double &c : rgb) {
        if (frame.premultiplied)
            c /= a;
        if (!frame.isYCbCr)
            c = power(c, 1.0 / double(look.sourceGamma));
        c = power(c, look.calibration.gamma);
    }
    balance(rgb, look.calibration);
    for (double &c : rgb)
        c = clipped(levelled(c, look.calibration), look.calibration.softClip) * a;
    return viewed({rgb[0], rgb[1], rgb[2], a}, look.channelViewMode);
}

/// What linear filters and clamped edges make of a point, both coordinates from 0 to 1. Straight colours count by their
/// alpha where that is shown.
Rgba filtered(const PictureFrame &shown, const PictureLook &look, double s, double t)
{
    const double x = s * shown.size.width() - 0.5;
    const double y = t * shown.size.height() - 0.5;
    Rgba result{};
    double covered = 0.0;
    for (const double row : {std::floor(y), std::floor(y) + 1.0}) {
        for (const double column : {std::floor(x), std::floor(x) + 1.0}) {
            const int index = std::clamp(int(row), 0, shown.size.height() - 1) * shown.size.width()
                + std::clamp(int(column), 0, shown.size.width() - 1);
            const Rgba texel = sampled(shown.texels[static_cast<std::size_t>(index)], shown.frame);
            const double weight = (1.0 - std::abs(x - column)) * (1.0 - std::abs(y - row));
            const bool asItIs = shown.frame.premultiplied || !look.alphaOn;
            const double counts = weight * (asItIs ? 1.0 : std::abs(texel[3]));
            for (std::size_t i = 0; i < 3; ++i)
                result[i] += counts * texel[i];
            covered += counts;
            result[3] += weight * texel[3];
        }
    }
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = covered > 0.0 ? result[i] / covered : 0.0;
    return result;
}

double checkerAt(const PictureSetup &setup, QPoint fromOffset)
{
    const auto odd = [&setup](int distance) {
        const double squares = (distance + 0.5) / 50.0 / setup.zoom;
        return int(squares - 2.0 * std::floor(squares / 2.0)) == 1;
    };
    return odd(fromOffset.x()) != odd(fromOffset.y()) ? 0.5 : 0.7;
}

/// What the framebuffer's 8 bits make of it; a half goes to the even number.
double rounded(double value)
{
    return std::nearbyint(double(float(value)) * 255.0) / 255.0;
}

Rgba blended(const Rgba &below, Rgba colour, bool alphaOn)
{
    for (double &c : colour)
        c = std::clamp(c, 0.0, 1.0);
    for (std::size_t i = 0; alphaOn && i < 4; ++i)
        colour[i] = std::min(colour[i] + rounded(below[i]) * (1.0 - colour[3]), 1.0);
    return colour;
}

} // namespace

PictureFrame::PictureFrame(const ImageFrame &form, QSize pixels)
    : frame(form)
    , size(pixels)
    , texels(static_cast<std::size_t>(pixels.width() * pixels.height()), Rgba{0.0, 0.0, 0.0, 1.0})
{
    const auto planes = static_cast<std::size_t>(frame.textureCount);
    const auto samples = static_cast<std::size_t>(frame.components);
    frame.planeSizes.assign(planes, {size.width(), size.height()});
    for (std::size_t i = 0; i < planes; ++i) {
        m_planes.push_back(guardedBytes(frame.planeBytes(i)));
        frame.planes.push_back(m_planes.back().get());
    }
    for (std::size_t i = 0; i < texels.size(); ++i) {
        for (std::size_t c = 0; c < std::max(planes, samples); ++c) {
            const double spread = std::fmod(double(i) * 0.618034 + double(c) * 0.37, 1.0);
            double value = spread * 2.5 - 0.5;
            // Nothing is defined for a colour that is divided by an alpha of zero, or for zero to the power of zero.
            if (std::abs(value) < 0.1 || (c == 3 && frame.premultiplied))
                value = 0.1 + 0.9 * spread;
            const std::size_t plane = planes > 1 ? c : 0;
            const std::size_t offset =
                (i * samples + c - plane) * frame.planeBytes(plane) / texels.size() / samples;
            texels[i][c] = store(m_planes[plane].get() + offset, value);
        }
    }
}

PictureFrame::~PictureFrame()
{
    frame.display->frameDies(frame);
    frame.deleteTextures();
}

double PictureFrame::store(std::byte *sample, double value) const
{
    const auto put = [sample](auto stored, double one) {
        std::memcpy(sample, &stored, sizeof stored);
        return double(stored) / one;
    };
    const double whole = std::clamp(value, 0.0, 1.0);
    switch (frame.pixelType) {
    case GL_UNSIGNED_BYTE:
        return put(static_cast<quint8>(std::lround(whole * 255.0)), 255.0);
    case GL_UNSIGNED_SHORT:
        return put(static_cast<quint16>(std::lround(whole * 65535.0)), 65535.0);
    case GL_HALF_FLOAT:
        return put(qfloat16(float(value)), 1.0);
    default:
        return put(float(value), 1.0);
    }
}

std::vector<std::optional<Rgba>> drawReference(const PictureSetup &setup, const PictureFrame *shown)
{
    const QSize frame = shown ? shown->size : QSize(320, 240);
    const auto width = double(std::lround(frame.width() * setup.zoom));
    const auto height = double(std::lround(frame.height() * setup.zoom));
    const double left = std::floor(std::max(setup.view.width() - width, 0.0) * 0.5);
    const double top = std::floor(std::max(setup.view.height() - height, 0.0) * 0.5);
    const QPoint offset(int(left - setup.pan.x()), int(setup.view.height() - top + setup.pan.y()));
    const QColor &background = setup.look.background;
    std::vector<std::optional<Rgba>> picture;
    for (int y = 0; y < setup.view.height(); ++y) {
        for (int x = 0; x < setup.view.width(); ++x) {
            const double dx = x + 0.5 + setup.pan.x() - left;
            const double dy = y + 0.5 + setup.pan.y() - top;
            const double outX = std::max(-dx, dx - width);
            const double outY = std::max(-dy, dy - height);
            const double out = std::max(outX, outY);
            const bool inside = out < 0.0;
            Rgba colour = {background.redF(), background.greenF(), background.blueF(), 1.0};
            if (inside && setup.look.checkerOn)
                colour.fill(checkerAt(setup, QPoint(x, setup.view.height() - 1 - y) - offset));
            if (shown && inside) {
                const double t = dy / height;
                const Rgba texel =
                    filtered(*shown, setup.look, dx / width, shown->frame.yFlipped ? t : 1.0 - t);
                colour = blended(colour, shaded(texel, shown->frame, setup.look), setup.look.alphaOn);
            }
            // A red line two pixels wide, its middle two pixels outside.
            if (shown && out > 1.0 && out < 3.0)
                colour = {1.0, 0.0, 0.0, 1.0};
            const bool corner = out < 4.0 && std::min(outX, outY) > 0.0;
            const bool edge = out == 0.0 || out == 1.0 || out == 3.0;
            picture.push_back(shown && (corner || edge) ? std::nullopt : std::optional(colour));
        }
    }
    return picture;
}

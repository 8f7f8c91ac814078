#pragma once

#include <viewer/frames/imageframe.h>
#include <viewer/widgets/render/picturelook.h>

#include <QtCore/QPoint>
#include <QtCore/QSize>

#include <array>
#include <memory>
#include <optional>
#include <vector>

using Rgba = std::array<double, 4>;

/// Where the picture lies, in device pixels, and how it is shown.
struct PictureSetup {
    PictureLook look{};
    QSize view{};
    float zoom = 1.0F;
    QPoint pan{};
};

/// A frame of colours from below zero to above one, gone from its display with this. Each plane ends at a page that
/// nobody may touch, so that an upload that reads on dies.
struct PictureFrame {
    Q_DISABLE_COPY_MOVE(PictureFrame)

    /// Formats, counts, flags and display are as in the form.
    PictureFrame(const ImageFrame &form, QSize size);
    ~PictureFrame();

    ImageFrame frame;
    QSize size;
    /// What a shader samples, rows in the order of memory; of several textures, the red of each.
    std::vector<Rgba> texels;

private:
    double store(std::byte *sample, double value) const;

    std::vector<std::shared_ptr<std::byte>> m_planes;
};

/// The view without a HUD, top row first; nothing where a driver is free (pixels cut in half, the border's corners). The frame may be null.
std::vector<std::optional<Rgba>> drawReference(const PictureSetup &setup, const PictureFrame *shown);

#include "ctimage.h"

#include "imagemodules.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>
#include <stdexcept>
#include <utility>

namespace TImageLibrary {

namespace {

std::int32_t scaled(std::int32_t size, std::int32_t from, std::int32_t to)
{
    return std::max(1, std::int32_t(std::llround(double(size) * double(to) / double(from))));
}

CTImageChannel resized(const CTImageChannel &channel, std::int32_t width, std::int32_t height)
{
    TPlaneFormat format = channel.format();
    format.width = width;
    format.height = height;
    CTImageChannel result(channel.GetChannelName(), format);
    const OiioModule *module = oiioModule();
    if (!module)
        throw std::runtime_error("nothing that resizes");
    module->resize(channel, result);
    return result;
}

} // namespace

CTImage::CTImage(std::int32_t width, std::int32_t height, bool premultiplied,
                 std::vector<CTImageLayer> layers, bool deep)
    : m_width(width)
    , m_height(height)
    , m_premultiplied(premultiplied)
    , m_deep(deep)
    , m_layers(std::move(layers))
{ }

const CTImageLayer *CTImage::GetLayer(const char *name) const
{
    const auto found = std::find_if(m_layers.begin(), m_layers.end(), [name](const CTImageLayer &layer) {
        return name && layer.GetLayerName() == name;
    });
    return found == m_layers.end() ? nullptr : &*found;
}

const CTImageLayer *CTImage::GetDefaultLayer() const
{
    for (const char *name : {"", "R", "Y"}) {
        if (const CTImageLayer *layer = GetLayer(name))
            return layer;
    }
    return &m_layers.front();
}

bool CTImage::Resize(std::int32_t width, std::int32_t height, CTImage *&out) const
{
    out = nullptr;
    if (width <= 0 || height <= 0)
        return false;
    try {
        std::vector<CTImageLayer> layers;
        for (const CTImageLayer &layer : m_layers) {
            std::vector<CTImageChannel> channels;
            for (const CTImageChannel &channel : layer.GetChannels())
                channels.push_back(resized(channel, scaled(channel.GetChannelWidth(), m_width, width),
                                           scaled(channel.GetChannelHeight(), m_height, height)));
            layers.emplace_back(layer.GetLayerName(), std::move(channels));
        }
        out = std::make_unique<CTImage>(width, height, m_premultiplied, std::move(layers), m_deep).release();
    } catch (const std::exception &) {
        return false;
    }
    return true;
}

} // namespace TImageLibrary

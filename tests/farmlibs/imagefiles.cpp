#include "imagefiles.h"

#include <ImfChannelList.h>
#include <ImfDeepFrameBuffer.h>
#include <ImfDeepScanLineOutputPart.h>
#include <ImfDeepTiledOutputPart.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfMultiPartOutputFile.h>
#include <ImfOutputPart.h>
#include <ImfPartType.h>
#include <ImfTiledOutputPart.h>
#include <half.h>

#include <QtCore/QFile>

#include <bit>
#include <cmath>
#include <limits>

using namespace TImageLibrary;

namespace {

/// A sample as the file stores it; a half takes the first bytes.
quint32 sampleBits(float value, Imf::PixelType type)
{
    if (type == Imf::UINT)
        return quint32(std::lround(value));
    return type == Imf::HALF ? half(value).bits() : std::bit_cast<quint32>(value);
}

Imf::Header headerOf(const ExrSpec &spec)
{
    Imf::Header header(spec.display, spec.data, 1, {0, 0}, 1, spec.order, spec.compression);
    for (const ExrChannelSpec &channel : spec.channels)
        header.channels().insert(channel.name,
                                 Imf::Channel(channel.type, channel.sampling.x, channel.sampling.y));
    if (spec.deep)
        header.setType(spec.tiled ? Imf::DEEPTILE : Imf::DEEPSCANLINE);
    else
        header.setType(spec.tiled ? Imf::TILEDIMAGE : Imf::SCANLINEIMAGE);
    if (spec.tiled)
        header.setTileDescription(Imf::TileDescription(16, 16, spec.levels));
    if (!spec.part.empty())
        header.setName(spec.part);
    return header;
}

void writePart(Imf::MultiPartOutputFile &file, int part, const ExrSpec &spec)
{
    std::vector<std::vector<quint32>> planes(spec.channels.size());
    const Imath::Box2i &data = spec.data;
    Imf::FrameBuffer buffer;
    for (std::size_t i = 0; i < planes.size(); ++i) {
        const auto &[name, type, step] = spec.channels[i];
        for (int y = data.min.y; y <= data.max.y; y += step.y) {
            for (int x = data.min.x; x <= data.max.x; x += step.x)
                planes[i].push_back(spec.random && (y & 24) == 8 ? quint32((*spec.random)())
                                                                 : sampleBits(testValue(x, y, int(i)), type));
        }
        const auto columns = std::size_t(data.max.x - data.min.x) / std::size_t(step.x) + 1;
        buffer.insert(name, Imf::Slice::Make(type, planes[i].data(), data, 4, 4 * columns, step.x, step.y));
    }
    const int rows = spec.data.max.y - spec.data.min.y + 1;
    if (spec.tiled) {
        Imf::TiledOutputPart output(file, part);
        output.setFrameBuffer(buffer);
        for (int y = 0; y < output.numYLevels(); ++y) {
            for (int x = 0; x < output.numXLevels(); ++x) {
                if (spec.levels != Imf::MIPMAP_LEVELS || x == y)
                    output.writeTiles(0, output.numXTiles(x) - 1, 0, output.numYTiles(y) - 1, x, y);
            }
        }
    } else {
        Imf::OutputPart output(file, part);
        output.setFrameBuffer(buffer);
        output.writePixels(spec.rowsWritten < 0 ? rows : spec.rowsWritten);
    }
}

float deepSample(const std::string &channel, int x, int y, int sample)
{
    const float alpha = sample == 2 ? 1.0F : 0.25F + 0.125F * float(sample);
    if (channel == "A")
        return alpha;
    if (channel.starts_with('Z'))
        return float(sample) + (channel == "Z" ? 1.0F : 2.5F);
    return alpha * testValue(x, y, channel.back()) / 1024.0F;
}

void writeDeepPart(Imf::MultiPartOutputFile &file, int part, const ExrSpec &spec)
{
    const Imath::Box2i &data = spec.data;
    const auto columns = std::size_t(data.max.x - data.min.x) + 1;
    std::vector<unsigned> counts;
    std::vector<std::vector<std::vector<quint32>>> samples(spec.channels.size()); // by channel, then pixel
    for (int y = data.min.y; y <= data.max.y; ++y) {
        for (int x = data.min.x; x <= data.max.x; ++x) {
            counts.push_back(unsigned(x * 5 + y * 3 + 64) % 5);
            for (std::size_t i = 0; i < samples.size(); ++i) {
                std::vector<quint32> &pixel = samples[i].emplace_back();
                for (int sample = 0; sample < int(counts.back()); ++sample)
                    pixel.push_back(
                        sampleBits(deepSample(spec.channels[i].name, x, y, sample), spec.channels[i].type));
            }
        }
    }
    const auto origin = -(std::ptrdiff_t(data.min.y) * std::ptrdiff_t(columns) + data.min.x);
    Imf::DeepFrameBuffer buffer;
    buffer.insertSampleCountSlice(Imf::Slice(Imf::UINT, reinterpret_cast<char *>(counts.data() + origin),
                                             sizeof(unsigned), sizeof(unsigned) * columns));
    std::vector<std::vector<quint32 *>> pointers(samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        for (std::vector<quint32> &pixel : samples[i])
            pointers[i].push_back(pixel.data());
        buffer.insert(spec.channels[i].name,
                      Imf::DeepSlice(spec.channels[i].type,
                                     reinterpret_cast<char *>(pointers[i].data() + origin), sizeof(quint32 *),
                                     sizeof(quint32 *) * columns, sizeof(quint32)));
    }
    if (spec.tiled) {
        Imf::DeepTiledOutputPart output(file, part);
        output.setFrameBuffer(buffer);
        output.writeTiles(0, output.numXTiles() - 1, 0, output.numYTiles() - 1);
    } else {
        Imf::DeepScanLineOutputPart output(file, part);
        output.setFrameBuffer(buffer);
        output.writePixels(int(counts.size() / columns));
    }
}

} // namespace

QByteArray layersOf(const std::string &path)
{
    std::set<std::string> names;
    if (!IImageCore::LoadLayers(path.c_str(), IImageCore::Probe(path.c_str()), names))
        return "none";
    QByteArrayList quoted;
    for (const std::string &name : names)
        quoted.append('"' + QByteArray::fromStdString(name) + '"');
    return quoted.join(' ');
}

Image loadImage(const std::string &path, std::set<std::string> names)
{
    const char *format = IImageCore::Probe(path.c_str());
    if (names.empty() && !IImageCore::LoadLayers(path.c_str(), format, names))
        return nullptr;
    return Image(IImageCore::Load(path.c_str(), format, names, nullptr, nullptr));
}

double sampleAt(const CTImageChannel &channel, int x, int y, int sample)
{
    const std::size_t index = (std::size_t(y) * std::size_t(channel.GetChannelWidth()) + std::size_t(x))
            * std::size_t(channel.GetChannelBitSamples())
        + std::size_t(sample);
    const void *data = channel.GetChannelData();
    switch (channel.GetChannelBitDepth()) {
    case 1:
        return static_cast<const quint8 *>(data)[index];
    case 2:
        return channel.GetChannelBitType() == 1 ? double(float(static_cast<const half *>(data)[index]))
                                                : static_cast<const quint16 *>(data)[index];
    default:
        return double(static_cast<const float *>(data)[index]);
    }
}

double sampleAt(const Image &image, const char *layer, int x, int y, int sample)
{
    const CTImageLayer *found = image->GetLayer(layer);
    return found ? sampleAt(*found->GetDefaultChannel(), x, y, sample)
                 : std::numeric_limits<double>::quiet_NaN();
}

float testValue(int x, int y, int channel)
{
    return float(((x + 64) % 64) * 8 + ((y + 64) % 64) * 3 + channel * 5 + 1);
}

void writeExr(const std::string &path, const ExrSpec &spec)
{
    writeExr(path, std::vector<ExrSpec>{spec});
}

void writeExr(const std::string &path, const std::vector<ExrSpec> &parts)
{
    std::vector<Imf::Header> headers;
    headers.reserve(parts.size());
    for (const ExrSpec &part : parts)
        headers.push_back(headerOf(part));
    Imf::MultiPartOutputFile file(path.c_str(), headers.data(), int(headers.size()));
    for (std::size_t i = 0; i < parts.size(); ++i)
        (parts[i].deep ? writeDeepPart : writePart)(file, int(i), parts[i]);
}

bool writeImage(const std::string &path, OIIO::ImageSpec spec)
{
    spec.attribute("tiff:half", 1); // else its writer makes floats of them
    std::vector<float> pixels;
    for (int y = 0; y < spec.height; ++y) {
        for (int x = 0; x < spec.width; ++x) {
            for (int channel = 0; channel < spec.nchannels; ++channel)
                pixels.push_back(testValue(x, y, channel) / 1024.0F);
        }
    }
    const auto output = OIIO::ImageOutput::create(path);
    return output && output->open(path, spec) && output->write_image(OIIO::TypeDesc::FLOAT, pixels.data())
        && output->close();
}

bool writeBytes(const std::string &path, const QByteArray &bytes)
{
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray readBytes(const std::string &path)
{
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

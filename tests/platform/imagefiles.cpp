#include "imagefiles.h"

#include <ImfChannelList.h>
#include <ImfDeepFrameBuffer.h>
#include <ImfDeepScanLineOutputPart.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfMultiPartOutputFile.h>
#include <ImfOutputPart.h>
#include <ImfPartType.h>
#include <ImfTiledOutputPart.h>
#include <half.h>

#include <QtCore/QFile>

#include <array>
#include <cmath>
#include <limits>

using namespace TImageLibrary;

namespace {

/// The pixels of one channel in a data window, as the file is to store them.
struct ChannelPixels {
    std::vector<char> bytes;
    Imf::Slice slice;

    ChannelPixels(const ExrSpec &spec, int index)
    {
        const ExrChannelSpec &channel = spec.channels[std::size_t(index)];
        const int step = channel.sampling;
        const std::size_t size = channel.type == Imf::HALF ? 2 : 4;
        const int columns = (spec.data.max.x - spec.data.min.x) / step + 1;
        for (int y = spec.data.min.y; y <= spec.data.max.y; y += step) {
            for (int x = spec.data.min.x; x <= spec.data.max.x; x += step)
                append(testValue(x, y, index), channel.type);
        }
        const std::size_t row = size * std::size_t(columns);
        const std::intptr_t origin =
            spec.data.min.y / step * std::intptr_t(row) + spec.data.min.x / step * std::intptr_t(size);
        slice = Imf::Slice(channel.type,
                           reinterpret_cast<char *>(reinterpret_cast<std::intptr_t>(bytes.data()) - origin),
                           size, row, step, step);
    }

    void append(float value, Imf::PixelType type)
    {
        const half asHalf(value);
        const auto asInteger = static_cast<unsigned>(std::lround(value));
        const void *data = &value;
        if (type != Imf::FLOAT)
            data = type == Imf::HALF ? static_cast<const void *>(&asHalf) : &asInteger;
        const auto *first = static_cast<const char *>(data);
        bytes.insert(bytes.end(), first, first + (type == Imf::HALF ? 2 : 4));
    }
};

Imf::Header headerOf(const ExrSpec &spec)
{
    Imf::Header header(spec.display, spec.data, 1, {0, 0}, 1, spec.order, spec.compression);
    for (const ExrChannelSpec &channel : spec.channels)
        header.channels().insert(channel.name,
                                 Imf::Channel(channel.type, channel.sampling, channel.sampling));
    header.setType(spec.tiled ? Imf::TILEDIMAGE : Imf::SCANLINEIMAGE);
    if (spec.tiled)
        header.setTileDescription(Imf::TileDescription(16, 16));
    if (!spec.part.empty())
        header.setName(spec.part);
    return header;
}

void writePart(Imf::MultiPartOutputFile &file, int part, const ExrSpec &spec)
{
    std::vector<ChannelPixels> pixels;
    Imf::FrameBuffer buffer;
    for (int i = 0; i < int(spec.channels.size()); ++i) {
        pixels.emplace_back(spec, i);
        buffer.insert(spec.channels[std::size_t(i)].name, pixels.back().slice);
    }
    const int rows = spec.data.max.y - spec.data.min.y + 1;
    if (spec.tiled) {
        Imf::TiledOutputPart output(file, part);
        output.setFrameBuffer(buffer);
        output.writeTiles(0, output.numXTiles() - 1, 0, output.numYTiles() - 1);
    } else {
        Imf::OutputPart output(file, part);
        output.setFrameBuffer(buffer);
        output.writePixels(spec.rowsWritten < 0 ? rows : spec.rowsWritten);
    }
}

constexpr int kDeepSize = 4;

void writeDeepPart(Imf::MultiPartOutputFile &file, int part)
{
    std::array<unsigned, kDeepSize * kDeepSize> counts{};
    counts.fill(1);
    float depth = 1.0F;
    std::array<float *, kDeepSize * kDeepSize> samples{};
    samples.fill(&depth);
    Imf::DeepFrameBuffer buffer;
    buffer.insertSampleCountSlice(Imf::Slice(Imf::UINT, reinterpret_cast<char *>(counts.data()),
                                             sizeof(unsigned), sizeof(unsigned) * kDeepSize));
    buffer.insert("Z",
                  Imf::DeepSlice(Imf::FLOAT, reinterpret_cast<char *>(samples.data()), sizeof(float *),
                                 sizeof(float *) * kDeepSize, sizeof(float)));
    Imf::DeepScanLineOutputPart output(file, part);
    output.setFrameBuffer(buffer);
    output.writePixels(kDeepSize);
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
    for (const ExrSpec &part : parts)
        headers.push_back(headerOf(part));
    Imf::MultiPartOutputFile file(path.c_str(), headers.data(), int(headers.size()));
    for (std::size_t i = 0; i < parts.size(); ++i)
        writePart(file, int(i), parts[i]);
}

void writeDeepExr(const std::string &path, const ExrSpec *flat)
{
    ExrSpec deep;
    deep.data = deep.display = {{0, 0}, {kDeepSize - 1, kDeepSize - 1}};
    deep.channels = {{"Z", Imf::FLOAT}};
    deep.compression = Imf::ZIPS_COMPRESSION;
    deep.part = "deep";
    std::vector<Imf::Header> headers;
    if (flat)
        headers.push_back(headerOf(*flat));
    headers.push_back(headerOf(deep));
    headers.back().setType(Imf::DEEPSCANLINE);
    Imf::MultiPartOutputFile file(path.c_str(), headers.data(), int(headers.size()));
    if (flat)
        writePart(file, 0, *flat);
    writeDeepPart(file, int(headers.size()) - 1);
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

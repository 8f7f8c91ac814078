#include "exrreaders.h"

#include <ImfChannelList.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfInputFile.h>
#include <ImfOutputFile.h>
#include <ImfThreading.h>
#include <OpenImageIO/imageio.h>
#include <half.h>
#include <openexr.h>

#include <cmath>
#include <map>
#include <memory>
#include <random>

namespace {

using Plane = std::unique_ptr<half[]>;

/// Soft shapes, either with grain, neither flat nor noise, or cut out, every other one with a pattern on it.
std::vector<half> picture(const ExrSample &sample, int seed)
{
    std::mt19937 random(static_cast<unsigned>(seed));
    std::uniform_real_distribution<float> grain(-0.01F, 0.01F);
    std::vector<half> pixels;
    pixels.reserve(std::size_t(sample.width) * std::size_t(sample.height));
    for (int y = 0; y < sample.height; ++y) {
        for (int x = 0; x < sample.width; ++x) {
            const float shape = std::sin(float(x + 37 * seed) * 0.01F) * std::cos(float(y) * 0.013F);
            const bool hasPattern = (x / 314 + y / 242) % 2 == 0 && (x * 7 + y * 5) % 32 < 16;
            if (sample.hasGrain)
                pixels.emplace_back(0.5F + 0.4F * shape + grain(random));
            else
                pixels.emplace_back(std::abs(shape) < 0.2F ? 0.0F : shape * (hasPattern ? 0.5F : 0.4F));
        }
    }
    return pixels;
}

std::map<std::string, Plane> takePlanes(const ExrSample &sample)
{
    std::map<std::string, Plane> planes;
    for (const std::string &name : sample.wanted)
        planes.emplace(name, new half[std::size_t(sample.width) * std::size_t(sample.height)]);
    return planes;
}

bool decodeChunk(exr_context_t file, const exr_chunk_info_t &chunk, exr_decode_pipeline_t &decoder,
                 bool isFirst, const ExrSample &sample, const std::map<std::string, Plane> &planes)
{
    const exr_result_t ready = isFirst ? exr_decoding_initialize(file, 0, &chunk, &decoder)
                                       : exr_decoding_update(file, 0, &chunk, &decoder);
    if (ready != EXR_ERR_SUCCESS)
        return false;
    for (int i = 0; i < decoder.channel_count; ++i) {
        exr_coding_channel_info_t &channel = decoder.channels[i];
        const auto plane = planes.find(channel.channel_name);
        channel.decode_to_ptr = nullptr;
        if (plane == planes.end())
            continue;
        half *row = plane->second.get() + std::size_t(chunk.start_y) * std::size_t(sample.width);
        channel.decode_to_ptr = reinterpret_cast<std::uint8_t *>(row);
        channel.user_bytes_per_element = 2;
        channel.user_pixel_stride = 2;
        channel.user_line_stride = sample.width * 2;
        channel.user_data_type = EXR_PIXEL_HALF;
    }
    if (isFirst && exr_decoding_choose_default_routines(file, 0, &decoder) != EXR_ERR_SUCCESS)
        return false;
    return exr_decoding_run(file, 0, &decoder) == EXR_ERR_SUCCESS;
}

bool decodeChunks(exr_context_t file, const ExrSample &sample)
{
    std::int32_t lines = 0;
    if (exr_get_scanlines_per_chunk(file, 0, &lines) != EXR_ERR_SUCCESS)
        return false;
    const std::map<std::string, Plane> planes = takePlanes(sample);
    exr_decode_pipeline_t decoder{};
    bool ok = true;
    for (int y = 0; ok && y < sample.height; y += lines) {
        exr_chunk_info_t chunk{};
        ok = exr_read_scanline_chunk_info(file, 0, y, &chunk) == EXR_ERR_SUCCESS
            && decodeChunk(file, chunk, decoder, y == 0, sample, planes);
    }
    exr_decoding_destroy(file, &decoder);
    return ok;
}

} // namespace

std::vector<ExrSample> listSamples(const std::filesystem::path &folder)
{
    const std::vector<std::string> colour = {"A", "B", "G", "R"};
    std::vector<std::string> many = colour;
    for (int i = 0; i < 36; ++i)
        many.push_back("layer" + std::to_string(i / 4) + "." + colour[std::size_t(i % 4)]);

    struct Kind {
        const char *name;
        Imf::Compression compression;
        double promise;
        bool hasGrain = true;
    };
    std::vector<ExrSample> samples;
    const auto add = [&](const Kind &kind, int width, int height, const std::vector<std::string> &channels) {
        samples.push_back({std::to_string(width) + 'x' + std::to_string(height) + ' ' + kind.name,
                           (folder / (std::to_string(samples.size()) + ".exr")).string(),
                           width,
                           height,
                           kind.compression,
                           kind.hasGrain,
                           kind.promise,
                           channels,
                           {colour.begin(), colour.end()}});
    };
    for (const Kind &kind : {Kind{"DWAA", Imf::DWAA_COMPRESSION, 1.05},
                             {"PIZ", Imf::PIZ_COMPRESSION, 1.05},
                             {"ZIP", Imf::ZIP_COMPRESSION, 0.40, false},
                             {"ZIP, grain", Imf::ZIP_COMPRESSION, 0.55},
                             {"ZIPS", Imf::ZIPS_COMPRESSION, 0.40, false},
                             {"RLE", Imf::RLE_COMPRESSION, 1.05, false},
                             {"none", Imf::NO_COMPRESSION, 0.50}}) {
        add(kind, 1920, 1080, colour);
        add(kind, 4096, 2160, colour);
    }
    add({"ZIP, 4 of 40", Imf::ZIP_COMPRESSION, 0.45}, 1920, 1080, many);
    return samples;
}

void writeSample(const ExrSample &sample)
{
    Imf::Header header(sample.width, sample.height);
    header.compression() = sample.compression;
    Imf::FrameBuffer buffer;
    const auto size = std::size_t(sample.width) * 2;
    std::vector<std::vector<half>> planes;
    constexpr int kPictures = 4;
    planes.reserve(kPictures);
    for (int seed = 0; seed < kPictures; ++seed)
        planes.push_back(picture(sample, seed));
    for (std::size_t i = 0; i < sample.channels.size(); ++i) {
        header.channels().insert(sample.channels[i], Imf::Channel(Imf::HALF));
        buffer.insert(
            sample.channels[i],
            Imf::Slice(Imf::HALF, reinterpret_cast<char *>(planes[i % planes.size()].data()), 2, size));
    }
    Imf::OutputFile file(sample.path.c_str(), header, 2);
    file.setFrameBuffer(buffer);
    file.writePixels(sample.height);
}

KeptPool::KeptPool()
    : m_threads(Imf::globalThreadCount())
{ }

KeptPool::~KeptPool()
{
    Imf::setGlobalThreadCount(m_threads);
}

bool readPlanar(const ExrSample &sample, int threads)
{
    if (Imf::globalThreadCount() != threads)
        Imf::setGlobalThreadCount(threads);
    const std::map<std::string, Plane> planes = takePlanes(sample);
    Imf::FrameBuffer buffer;
    for (const auto &[name, plane] : planes)
        buffer.insert(
            name,
            Imf::Slice(Imf::HALF, reinterpret_cast<char *>(plane.get()), 2, std::size_t(sample.width) * 2));
    Imf::InputFile file(sample.path.c_str(), threads);
    file.setFrameBuffer(buffer);
    file.readPixels(0, sample.height - 1);
    return true;
}

bool readCore(const ExrSample &sample)
{
    exr_context_t file = nullptr;
    if (exr_start_read(&file, sample.path.c_str(), nullptr) != EXR_ERR_SUCCESS)
        return false;
    const bool ok = decodeChunks(file, sample);
    exr_finish(&file);
    return ok;
}

bool readOpenImageIO(const ExrSample &sample)
{
    const auto input = OIIO::ImageInput::open(sample.path);
    // The colour stands before every other channel.
    const auto channels = int(sample.wanted.size());
    const std::unique_ptr<half[]> pixels(new half[sample.planeBytes() / 2]);
    return input && input->read_image(0, 0, 0, channels, OIIO::TypeDesc::HALF, pixels.get());
}

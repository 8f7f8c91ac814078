#include "framewriter.h"

#include <ImfChannelList.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfOutputFile.h>
#include <ImfStdIO.h>

#include <algorithm>
#include <exception>
#include <fstream>
#include <system_error>
#include <utility>

namespace {

/// Adds the channels of a layer to the file and to what is written.
class Channels {
public:
    explicit Channels(const RenderedFrame &frame)
        : header(frame.width, frame.height)
        , m_width(std::size_t(frame.width))
    { }

    void add(const std::string &name, const half &first) { add(name, Imf::HALF, &first); }
    void add(const std::string &name, const float &first) { add(name, Imf::FLOAT, &first); }
    void add(const std::string &layer, const Light<half> &first)
    {
        add(layer + "R", first.r);
        add(layer + "G", first.g);
        add(layer + "B", first.b);
    }

    Imf::Header header;
    Imf::FrameBuffer pixels;

private:
    void add(const std::string &name, Imf::PixelType type, const void *first)
    {
        constexpr std::size_t kStep = sizeof(RenderedPixel);
        header.channels().insert(name, Imf::Channel(type));
        // The library reads through a pointer that it takes for writable.
        auto *base = static_cast<char *>(const_cast<void *>(first));
        pixels.insert(name, Imf::Slice(type, base, kStep, kStep * m_width));
    }

    std::size_t m_width;
};

Channels channelsOf(const RenderedFrame &frame)
{
    Channels channels(frame);
    const RenderedPixel &first = frame.pixels.front();
    channels.add("", first.color);
    channels.add("A", first.alpha);
    channels.add("diffuse.", first.diffuse);
    channels.add("specular.", first.specular);
    channels.add("Z", first.depth);
    channels.header.compression() = Imf::ZIP_COMPRESSION;
    channels.header.zipCompressionLevel() = 1; // half the time, a fifth more bytes
    return channels;
}

bool writeBytes(const std::filesystem::path &path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), std::streamsize(bytes.size()));
    file.close();
    return bool(file);
}

} // namespace

std::string encodeExr(const RenderedFrame &frame)
{
    const Channels channels = channelsOf(frame);
    Imf::StdOSStream stream;
    {
        Imf::OutputFile file(stream, channels.header);
        file.setFrameBuffer(channels.pixels);
        file.writePixels(frame.height);
    }
    return stream.str();
}

bool writeWhole(const std::filesystem::path &path, std::string_view bytes)
{
    std::filesystem::path unfinished = path;
    unfinished += ".tmp";
    std::error_code error;
    if (writeBytes(unfinished, bytes))
        std::filesystem::rename(unfinished, path, error);
    else
        error = std::make_error_code(std::errc::io_error);
    if (!error)
        return true;
    std::error_code ignored;
    std::filesystem::remove(unfinished, ignored);
    return false;
}

struct FrameInTheMaking::File {
    File(const std::filesystem::path &path, const RenderedFrame &frame)
        : stream(path, std::ios::binary | std::ios::trunc)
        , exrStream(stream, path.c_str())
        , exr(exrStream, channelsOf(frame).header)
    {
        exr.setFrameBuffer(channelsOf(frame).pixels);
    }

    std::ofstream stream;
    Imf::StdOFStream exrStream;
    Imf::OutputFile exr;
};

FrameInTheMaking::FrameInTheMaking(std::filesystem::path path, RenderedFrame frame)
    : m_path(std::move(path))
    , m_frame(std::move(frame))
{
    try {
        m_file = std::make_unique<File>(m_path, m_frame);
    } catch (const std::exception &) {
        m_file.reset();
    }
}

FrameInTheMaking::~FrameInTheMaking() = default;

bool FrameInTheMaking::writeMore()
{
    constexpr int kLines = 16; // that the compression takes together
    if (!m_file)
        return false;
    try {
        const int left = m_frame.height - m_file->exr.currentScanLine();
        m_file->exr.writePixels(std::min(kLines, left));
        m_file->stream.flush();
        return left > kLines;
    } catch (const std::exception &) {
        m_file.reset();
        return false;
    }
}

#include "oiiofile.h"

#include "oiioformats.h"
#include "orientation.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

namespace TImageLibrary {

namespace {

/// Where one of several reads stands within the whole load.
struct ReadProgress {
    Progress &progress;
    double done;
    double share;

    /// OpenImageIO's callback; true would stop it.
    static bool report(void *self, float fraction)
    {
        auto &read = *static_cast<ReadProgress *>(self);
        read.progress.report(read.done + read.share * double(fraction));
        return false;
    }
};

[[noreturn]] void fail(const OIIO::ImageInput &input)
{
    // An error that nobody asks for would be printed.
    throw std::runtime_error(input.geterror());
}

OIIO::TypeDesc planeType(const TPlaneFormat &format)
{
    if (format.depth == 1)
        return OIIO::TypeDesc::UINT8;
    if (format.depth == 2)
        return format.isFloat ? OIIO::TypeDesc::HALF : OIIO::TypeDesc::UINT16;
    return OIIO::TypeDesc::FLOAT;
}

/// Grey and alpha, which stand first in each pixel of four samples, become a colour and alpha.
template <typename Sample>
void spreadGrey(CTImageChannel &channel)
{
    auto *pixel = reinterpret_cast<Sample *>(channel.data());
    const Sample *end = pixel + channel.format().byteSize() / sizeof(Sample);
    for (; pixel != end; pixel += 4) {
        pixel[3] = pixel[1];
        pixel[1] = pixel[2] = pixel[0];
    }
}

void spreadGrey(CTImageChannel &channel)
{
    switch (channel.format().depth) {
    case 1:
        return spreadGrey<std::uint8_t>(channel);
    case 2:
        return spreadGrey<std::uint16_t>(channel);
    default:
        return spreadGrey<float>(channel);
    }
}

void makeOpaque(CTImageChannel &channel)
{
    auto *sample = reinterpret_cast<std::uint16_t *>(channel.data());
    const std::uint16_t *end = sample + channel.format().byteSize() / sizeof(std::uint16_t);
    for (; sample != end; sample += 4)
        sample[3] = std::numeric_limits<std::uint16_t>::max();
}

std::string channelName(const OIIO::ImageSpec &spec, int channel)
{
    const std::string name(spec.channel_name(channel));
    return name.empty() ? "channel" + std::to_string(channel) : name;
}

} // namespace

OiioFile::OiioFile(const SourceFile &file, const OiioFormat &format)
    : m_input(OIIO::ImageInput::create(format.name))
{
    if (!m_input || (format.isSound && !format.isSound(file)))
        throw std::runtime_error("damaged file");
    OIIO::ImageSpec wish;
    // The display multiplies by alpha itself.
    wish.attribute("oiio:UnassociatedAlpha", 1);
    if (!m_input->open(file.path(), m_spec, wish))
        fail(*m_input);
    if (m_spec.width <= 0 || m_spec.height <= 0 || m_spec.depth > 1 || m_spec.nchannels <= 0 || m_spec.deep)
        throw std::runtime_error("no flat picture");
    if (!file.canHold(m_spec.image_bytes(true), format.expansion))
        throw std::runtime_error("picture larger than the file");
}

std::int32_t OiioFile::width() const
{
    return swapsSides(m_spec.get_int_attribute("Orientation")) ? m_spec.height : m_spec.width;
}

std::int32_t OiioFile::height() const
{
    return swapsSides(m_spec.get_int_attribute("Orientation")) ? m_spec.width : m_spec.height;
}

bool OiioFile::isPremultiplied() const
{
    return m_spec.alpha_channel >= 0 && m_spec.get_int_attribute("oiio:UnassociatedAlpha") == 0;
}

bool OiioFile::isInterleaved() const
{
    return m_spec.nchannels == 1 || (m_spec.nchannels == 2 && m_spec.alpha_channel == 1)
        || m_spec.nchannels == 3 || m_spec.nchannels == 4;
}

std::vector<std::string> OiioFile::layers() const
{
    if (isInterleaved())
        return {std::string()};
    std::vector<std::string> names;
    for (int channel = 0; channel < m_spec.nchannels; ++channel)
        names.push_back(channelName(m_spec, channel));
    return names;
}

TPlaneFormat OiioFile::planeFormat(int samples) const
{
    TPlaneFormat format{m_spec.width, m_spec.height, 4, true, samples == 2 ? 4 : samples};
    switch (m_spec.format.basetype) {
    case OIIO::TypeDesc::UINT8:
        format.depth = 1;
        format.isFloat = false;
        break;
    case OIIO::TypeDesc::UINT16:
        // GL takes three of them for four, and a single one for no colour at all.
        if (samples != 1) {
            format.depth = 2;
            format.isFloat = false;
            format.samples = 4;
        }
        break;
    case OIIO::TypeDesc::HALF:
        format.depth = 2;
        break;
    default:
        break;
    }
    return format;
}

CTImageChannel OiioFile::read(const std::string &layer, Progress &progress, std::size_t part,
                              std::size_t parts)
{
    const std::vector<std::string> names = layers();
    const auto index = int(std::find(names.begin(), names.end(), layer) - names.begin());
    const int samples = isInterleaved() ? m_spec.nchannels : 1;
    const TPlaneFormat format = planeFormat(samples);
    CTImageChannel channel(layer, format, CTImageChannel::Fill::None);
    ReadProgress reported{progress, double(part) / double(parts), 1.0 / double(parts)};
    if (!m_input->read_image(0, 0, index, index + samples, planeType(format), channel.data(),
                             OIIO::stride_t(format.pixelBytes()), OIIO::AutoStride, OIIO::AutoStride,
                             &ReadProgress::report, &reported))
        fail(*m_input);
    if (samples == 2)
        spreadGrey(channel);
    else if (samples != format.samples)
        makeOpaque(channel);
    return upright(std::move(channel), m_spec.get_int_attribute("Orientation"));
}

} // namespace TImageLibrary

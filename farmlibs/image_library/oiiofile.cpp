#include "oiiofile.h"

#include "imageerror.h"
#include "oiioformats.h"
#include "planes.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>

namespace TImageLibrary {

namespace {

/// Nothing is thrown through OpenImageIO.
struct Report {
    Progress &progress;
    std::exception_ptr failure = nullptr;
};

/// OpenImageIO's callback; true stops it.
bool reportProgress(void *user, float fraction)
{
    auto *report = static_cast<Report *>(user);
    try {
        report->progress.report(double(fraction));
    } catch (...) {
        report->failure = std::current_exception();
    }
    return report->failure != nullptr;
}

[[noreturn]] void fail(const OIIO::ImageInput &input)
{
    // An error that nobody asks for would be printed.
    throw std::runtime_error(input.geterror());
}

/// The plane's own type for a sample of the file; with `alone` for a plane of one sample a pixel.
TPlaneFormat planeFormat(const OIIO::ImageSpec &spec, int samples, bool alone)
{
    TPlaneFormat format{spec.width, spec.height, 4, true, samples};
    format.stored = {std::min(std::int32_t(spec.format.basesize()), 4), spec.format.is_floating_point(),
                     samples};
    switch (spec.format.basetype) {
    case OIIO::TypeDesc::UINT8:
        format.depth = 1;
        format.isFloat = false;
        break;
    case OIIO::TypeDesc::UINT16:
        // GL shows a single one as no colour at all.
        format.depth = alone ? 4 : 2;
        format.isFloat = alone;
        break;
    case OIIO::TypeDesc::HALF:
        format.depth = 2;
        break;
    default:
        break;
    }
    return format;
}

std::string channelName(const OIIO::ImageSpec &spec, int channel)
{
    const std::string name(spec.channel_name(channel));
    return name.empty() ? "channel" + std::to_string(channel) : name;
}

} // namespace

OiioFile::OiioFile(const SourceFile &file, const OiioFormat &format)
    : m_format(format)
    , m_input(OIIO::ImageInput::create(format.name))
{
    if (!m_input)
        throw ImageError(TLoadFailure::Unsupported, std::string("no support for ") + format.name);
    if (format.isWhole && !format.isWhole(file))
        throw ImageError(TLoadFailure::Damaged,
                         "the end of the picture is not found: the file is cut off or damaged");
    OIIO::ImageSpec wish;
    // The display multiplies by alpha itself.
    wish.attribute("oiio:UnassociatedAlpha", 1);
    if (!m_input->open(file.path(), m_spec, wish))
        fail(*m_input);
    if (m_spec.depth > 1 || m_spec.deep)
        throw ImageError(TLoadFailure::Unsupported, "no flat picture");
    if (m_spec.width <= 0 || m_spec.height <= 0 || m_spec.nchannels <= 0)
        throw ImageError(TLoadFailure::Damaged, "a picture without pixels");
    if (!file.canHold(m_spec.image_bytes(true), format.expansion))
        throw ImageError(TLoadFailure::Damaged,
                         "announces " + std::to_string(m_spec.width) + 'x' + std::to_string(m_spec.height)
                             + " pixels, more than the file can hold");
}

int OiioFile::orientation() const
{
    return m_spec.get_int_attribute("Orientation");
}

std::int32_t OiioFile::width() const
{
    return swapsSides(orientation()) ? m_spec.height : m_spec.width;
}

std::int32_t OiioFile::height() const
{
    return swapsSides(orientation()) ? m_spec.width : m_spec.height;
}

bool OiioFile::isPremultiplied() const
{
    return !isInterleaved() && isMultiplied();
}

bool OiioFile::isMultiplied() const
{
    if (m_spec.alpha_channel < 0 || m_format.alpha == OiioAlpha::Straight)
        return false;
    return m_format.alpha == OiioAlpha::Multiplied || m_spec.get_int_attribute("oiio:UnassociatedAlpha") == 0;
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
    names.reserve(std::size_t(m_spec.nchannels));
    for (int channel = 0; channel < m_spec.nchannels; ++channel)
        names.push_back(channelName(m_spec, channel));
    return names;
}

std::vector<CTImageChannel> OiioFile::read(const std::vector<std::string> &layers, Progress &progress)
{
    std::vector<CTImageChannel> channels;
    if (isInterleaved()) {
        channels.push_back(readInterleaved(progress));
    } else {
        // At once, for the decoder would decode everything for each channel.
        CTImageChannel whole({}, planeFormat(m_spec, m_spec.nchannels, true), CTImageChannel::Fill::None);
        readInto(whole, progress);
        const std::vector<std::string> names = this->layers();
        for (const std::string &layer : layers) {
            const auto index = int(std::find(names.begin(), names.end(), layer) - names.begin());
            channels.push_back(sampleOf(whole, index, layer));
        }
    }
    for (CTImageChannel &channel : channels)
        channel = upright(std::move(channel), orientation());
    return channels;
}

CTImageChannel OiioFile::readInterleaved(Progress &progress)
{
    TPlaneFormat format = planeFormat(m_spec, m_spec.nchannels, m_spec.nchannels == 1);
    const bool isShort = format.depth == 2 && !format.isFloat;
    // GL takes three 16-bit integers for four, and has no pair of grey and alpha.
    if (format.samples == 2 || (isShort && format.samples == 3))
        format.samples = 4;
    CTImageChannel channel({}, format, CTImageChannel::Fill::None);
    readInto(channel, progress);
    if (m_spec.nchannels == 2)
        spreadGrey(channel);
    else if (m_spec.nchannels < format.samples)
        makeOpaque(channel);
    // Interleaved pixels are shown as straight.
    if (isMultiplied() && (m_spec.nchannels == 2 || m_spec.alpha_channel == 3))
        divideByAlpha(channel);
    return channel;
}

void OiioFile::readInto(CTImageChannel &pixels, Progress &progress)
{
    const TPlaneFormat &format = pixels.format();
    m_input->geterror(); // of the opening, which went well enough
    if (progress.isAhead())
        m_input->threads(1);
    Report report{progress};
    const bool done = m_input->read_image(0, 0, 0, m_spec.nchannels, sampleType(format), pixels.data(),
                                          OIIO::stride_t(format.pixelBytes()), OIIO::AutoStride,
                                          OIIO::AutoStride, reportProgress, &report);
    if (report.failure)
        std::rethrow_exception(report.failure);
    // Some decoders only mention that pixels were missing.
    if (!done || m_input->has_error())
        fail(*m_input);
}

} // namespace TImageLibrary

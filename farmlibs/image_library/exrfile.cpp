#include "exrfile.h"

#include "exrchannels.h"
#include "exrheaders.h"
#include "imageerror.h"

#include <ImathBox.h>
#include <ImfChannelList.h>
#include <ImfPartType.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string_view>
#include <thread>
#include <utility>

namespace TImageLibrary {

namespace {

struct CompressionFacts {
    int chunkRows;
    std::uint64_t expansion;
};

/// Throws that a file is compressed in a way that is not read. The newest ways have numbers, but no names here yet.
[[noreturn]] void refuseCompression(int number)
{
    constexpr int kHtj2k[] = {10, 11};
    const bool known = std::find(std::begin(kHtj2k), std::end(kHtj2k), number) != std::end(kHtj2k);
    throw ImageError(TLoadFailure::Unsupported,
                     "compressed with " + (known ? "HTJ2K" : "method " + std::to_string(number))
                         + ", which this OpenEXR does not read");
}

/// OpenEXR does not tell the number of a compression that is newer than itself.
void refuseNewCompression(const SourceFile &file)
{
    constexpr std::string_view kAttribute("compression\0compression\0\1\0\0\0", 28);
    constexpr std::uint64_t kHeaders = 1 << 20;
    const std::string bytes = file.beginning(kHeaders);
    for (std::size_t at = bytes.find(kAttribute); at != std::string::npos;
         at = bytes.find(kAttribute, at + 1)) {
        const std::size_t value = at + kAttribute.size();
        const int number = value < bytes.size() ? static_cast<unsigned char>(bytes[value]) : 0;
        if (number >= Imf::NUM_COMPRESSION_METHODS)
            refuseCompression(number);
    }
}

CompressionFacts factsOf(Imf::Compression compression)
{
    // Deflate makes at most 1032 bytes of one, and a PXR24 float drops one byte in four before. A code of PIZ stands for
    // at most 255 equal values. DWA takes blocks of 64 samples, or runs, to two bytes and deflates those.
    constexpr std::uint64_t kDeflate = 1032;
    switch (compression) {
    case Imf::NO_COMPRESSION:
        return {1, 1};
    case Imf::RLE_COMPRESSION:
        return {1, 64};
    case Imf::ZIPS_COMPRESSION:
        return {1, kDeflate};
    case Imf::ZIP_COMPRESSION:
        return {16, kDeflate};
    case Imf::PXR24_COMPRESSION:
        return {16, kDeflate * 4 / 3};
    case Imf::PIZ_COMPRESSION:
        return {32, 512};
    case Imf::B44_COMPRESSION:
    case Imf::B44A_COMPRESSION:
        return {32, 11};
    case Imf::DWAA_COMPRESSION:
        return {32, 64 * kDeflate};
    case Imf::DWAB_COMPRESSION:
        return {256, 64 * kDeflate};
    default:
        refuseCompression(int(compression));
    }
}

bool isFlat(const Imf::Header &header)
{
    return header.hasType() && (header.type() == Imf::SCANLINEIMAGE || header.type() == Imf::TILEDIMAGE);
}

std::uint64_t bytesPerPixel(const Imf::ChannelList &channels)
{
    std::uint64_t bytes = 0;
    for (auto channel = channels.begin(); channel != channels.end(); ++channel)
        bytes += channel.channel().type == Imf::HALF ? 2 : 4;
    return bytes;
}

/// In how many parts each channel name occurs; flat ones do not count the deep.
std::map<std::string, int> countNames(const Imf::MultiPartInputFile &parts, bool deep)
{
    std::map<std::string, int> counts;
    for (int part = 0; part < parts.parts(); ++part) {
        const Imf::Header &header = parts.header(part);
        if (!isFlat(header) && !(deep && isDeep(header)))
            continue;
        for (const ExrChannel &channel : channelsOf(header, part))
            ++counts[channel.name];
    }
    return counts;
}

/// What stands before the channels of a part. The whole part takes its name when one channel must, so that the
/// components of a colour stay together.
std::string prefixOf(const Imf::Header &header, const std::vector<ExrChannel> &channels,
                     const std::map<std::string, int> &counts)
{
    bool shared = false;
    for (const ExrChannel &channel : channels)
        shared = shared || counts.at(channel.name) > 1;
    return shared && header.hasName() ? header.name() + '.' : std::string();
}

} // namespace

ExrFile ExrFile::open(const SourceFile &file, const Progress *progress)
{
    try {
        checkHeaders(file);
        return ExrFile(file, progress);
    } catch (const std::exception &) {
        refuseNewCompression(file);
        throw;
    }
}

ExrFile::ExrFile(const SourceFile &file, const Progress *progress)
    : m_source(file)
    , m_progress(progress)
    , m_threads(progress && progress->isAhead() ? 0 : exrPoolThreads())
    , m_stream(file)
    // A table of chunks that is not there is not rebuilt: the writer has not finished, or the file is cut.
    , m_parts(m_stream, m_threads, false)
    , m_tablesEnd(m_stream.tellg())
{
    listChannels(false);
    listChannels(true);
    if (m_channels.empty())
        throw ImageError(TLoadFailure::Unsupported,
                         "deep pixels without the channels Z and A, which no picture can be made of");
}

void ExrFile::listChannels(bool deep)
{
    const std::map<std::string, int> counts = countNames(m_parts, deep);
    std::set<std::string> taken;
    for (const ExrChannel &channel : m_channels)
        taken.insert(channel.layer);
    for (int part = 0; part < m_parts.parts(); ++part) {
        const Imf::Header &partHeader = header(part);
        if (deep ? !isDeep(part) : !isFlat(partHeader))
            continue;
        std::vector<ExrChannel> channels = channelsOf(partHeader, part);
        const std::string prefix = prefixOf(partHeader, channels, counts);
        for (ExrChannel &channel : channels) {
            channel.layer = channel.name.starts_with(prefix) ? channel.name : prefix + channel.name;
            if (taken.insert(channel.layer).second)
                m_channels.push_back(std::move(channel));
        }
    }
}

void ExrFile::checkComplete(int part) const
{
    if (!m_parts.partComplete(part))
        throw ImageError(TLoadFailure::Damaged, nameOf(part) + " lacks some of its pixels");
}

void ExrFile::checkChunks(int part) const
{
    const Imf::Header &partHeader = header(part);
    const Imath::Box2i &window = partHeader.dataWindow();
    const std::uint64_t width = isTiled(part) ? partHeader.tileDescription().xSize
                                              : std::uint64_t(std::int64_t(window.max.x) - window.min.x + 1);
    const auto rows = std::uint64_t(chunkRows(part));
    // Of a deep pixel only its count of samples has a size.
    const std::uint64_t bytes = isDeep(part) ? sizeof(std::uint32_t) : bytesPerPixel(partHeader.channels());
    if (!m_source.canHold(width * rows * bytes, expansion(part)))
        throw ImageError(TLoadFailure::Damaged,
                         nameOf(part) + " has chunks that are larger than the file can fill");
}

std::uint64_t ExrFile::expansion(int part) const
{
    return factsOf(header(part).compression()).expansion;
}

int ExrFile::chunkRows(int part) const
{
    return isTiled(part) ? int(header(part).tileDescription().ySize)
                         : factsOf(header(part).compression()).chunkRows;
}

bool ExrFile::isTiled(int part) const
{
    return header(part).type() == Imf::TILEDIMAGE || header(part).type() == Imf::DEEPTILE;
}

bool ExrFile::isDeep(int part) const
{
    return TImageLibrary::isDeep(header(part));
}

std::string ExrFile::nameOf(int part) const
{
    if (m_parts.parts() == 1)
        return "the file";
    return header(part).hasName() ? "part \"" + header(part).name() + '"' : "part " + std::to_string(part);
}

int exrPoolThreads()
{
    constexpr unsigned kMostThreads = 16;
    const unsigned cores = std::thread::hardware_concurrency();
    return cores > 1 ? int(std::min(cores, kMostThreads)) : 0;
}

} // namespace TImageLibrary

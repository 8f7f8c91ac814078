#include "oiioformats.h"

#include <OpenImageIO/imageio.h>
#include <OpenImageIO/strutil.h>

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

namespace TImageLibrary {

namespace {

using namespace std::string_view_literals;

/// No format's header is shorter.
constexpr std::size_t kHeaderBytes = 16;

/// "tiff:tif,tiff;png:png" as a map.
const std::map<std::string, std::vector<std::string>> &extensionsByFormat()
{
    static const std::map<std::string, std::vector<std::string>> all = [] {
        std::map<std::string, std::vector<std::string>> map;
        for (const std::string &entry :
             OIIO::Strutil::splits(OIIO::get_string_attribute("extension_list"), ";")) {
            const std::size_t colon = entry.find(':');
            if (colon != std::string::npos)
                map[entry.substr(0, colon)] = OIIO::Strutil::splits(entry.substr(colon + 1), ",");
        }
        return map;
    }();
    return all;
}

bool hasExtensionOf(const SourceFile &file, const char *format)
{
    const auto found = extensionsByFormat().find(format);
    return found != extensionsByFormat().end()
        && std::find(found->second.begin(), found->second.end(), file.extension()) != found->second.end();
}

template <typename... Signatures>
bool startsWith(const SourceFile &file, Signatures... signatures)
{
    return (file.head().starts_with(signatures) || ...);
}

unsigned byteAt(const SourceFile &file, std::size_t offset)
{
    return offset < file.head().size() ? static_cast<unsigned char>(file.head()[offset]) : 0;
}

bool isTiff(const SourceFile &file)
{
    return startsWith(file, "II*\0"sv, "MM\0*"sv, "II+\0"sv, "MM\0+"sv);
}

/// Many cameras write TIFF files whose first image is only a preview: there the name decides.
bool isRaw(const SourceFile &file)
{
    if (file.head().size() < kHeaderBytes)
        return false;
    return (isTiff(file) && hasExtensionOf(file, "raw")) || file.head().substr(4).starts_with("ftypcrx"sv)
        || startsWith(file, "FUJIFILMCCD-RAW"sv, "IIU\0"sv, "IIRO"sv, "IIRS"sv, "MMOR"sv, "\0MRM"sv, "FOVb"sv)
        || (startsWith(file, "II\x1a\0\0\0"sv) && file.head().substr(6).starts_with("HEAPCCDR"sv));
}

bool isPnm(const SourceFile &file)
{
    return startsWith(file, "P"sv) && "123456Ff"sv.find(char(byteAt(file, 1))) != std::string_view::npos
        && " \t\r\n"sv.find(char(byteAt(file, 2))) != std::string_view::npos;
}

/// An RLA file has no signature but a revision, "FFFE", behind its windows, its frame and its channel counts.
bool isRla(const SourceFile &file)
{
    return file.head().size() == 512 && byteAt(file, 26) == 0xff && byteAt(file, 27) == 0xfe
        && byteAt(file, 19) <= 4 && byteAt(file, 21) <= 4;
}

/// Old Targa files have no signature at all: a header that makes sense, and either the newer footer or the name.
bool isTarga(const SourceFile &file)
{
    const unsigned type = byteAt(file, 2);
    const unsigned bits = byteAt(file, 16);
    const bool makesSense = file.head().size() > 18 && byteAt(file, 1) <= 1
        && "\1\2\3\x9\xa\xb"sv.find(char(type)) != std::string_view::npos
        && (bits == 8 || bits == 15 || bits == 16 || bits == 24 || bits == 32);
    return makesSense && (file.tail().ends_with("TRUEVISION-XFILE.\0"sv) || hasExtensionOf(file, "targa"));
}

/// Walks from chunk to chunk to the last. Where a file ends before it, libpng jumps out of OpenImageIO's reader, which loses
/// the memory of its message.
bool isWholePng(const SourceFile &file)
{
    constexpr std::size_t kSignature = 8;
    constexpr std::size_t kFrame = 12; // length, type and checksum
    const std::string bytes = file.contents();
    for (std::size_t at = kSignature; at + kFrame <= bytes.size();) {
        std::size_t length = 0;
        for (std::size_t i = 0; i < 4; ++i)
            length = length << 8 | static_cast<unsigned char>(bytes[at + i]);
        if (bytes.compare(at + 4, 4, "IEND") == 0)
            return true;
        at += kFrame + length;
    }
    return false;
}

/// Walks from marker to marker to the end of the image. Its decoder paints what a cut file lacks in grey.
bool isWholeJpeg(const SourceFile &file)
{
    const std::string bytes = file.contents();
    std::size_t at = 2;
    while ((at = bytes.find('\xff', at)) != std::string::npos && at + 1 < bytes.size()) {
        const auto marker = static_cast<unsigned char>(bytes[at + 1]);
        if (marker == 0xd9)
            return true;
        const bool isFill = marker == 0xff;
        const bool standsAlone = marker <= 0x01 || (marker >= 0xd0 && marker <= 0xd8);
        at += isFill ? 1 : 2;
        if (isFill || standsAlone)
            continue;
        if (at + 1 >= bytes.size())
            return false;
        at += std::size_t(static_cast<unsigned char>(bytes[at])) << 8
            | static_cast<unsigned char>(bytes[at + 1]);
    }
    return false;
}

/// The user data that the header announces, after the fixed 2048 bytes. Its decoder takes the memory for them unseen, and
/// aborts where they are many.
bool isWholeDpx(const SourceFile &file)
{
    constexpr std::uint64_t kHeader = 2048;
    constexpr std::uint32_t kUndefined = 0xffffffff;
    const bool isBig = file.head().starts_with('S');
    std::uint32_t length = 0;
    for (std::size_t i = 0; i < 4; ++i)
        length = length << 8 | byteAt(file, isBig ? 32 + i : 35 - i);
    return length == 0 || length == kUndefined || kHeader + length <= file.size();
}

const std::array<OiioFormat, 15> kFormats = {{
    {"png", 2100, OiioAlpha::AsTold,
     [](const SourceFile &file) { return startsWith(file, "\x89PNG\r\n\x1a\n"sv); }, isWholePng},
    {"jpeg", 1000, OiioAlpha::AsTold,
     [](const SourceFile &file) { return startsWith(file, "\xff\xd8\xff"sv); }, isWholeJpeg},
    {"raw", 64, OiioAlpha::AsTold, isRaw, nullptr},
    {"tiff", 8192, OiioAlpha::AsTold, isTiff, nullptr},
    {"dpx", 64, OiioAlpha::AsTold,
     [](const SourceFile &file) { return startsWith(file, "SDPX"sv, "XPDS"sv); }, isWholeDpx},
    {"cineon", 4, OiioAlpha::AsTold,
     [](const SourceFile &file) { return startsWith(file, "\x80\x2a\x5f\xd7"sv, "\xd7\x5f\x2a\x80"sv); },
     nullptr},
    {"hdr", 200, OiioAlpha::AsTold, [](const SourceFile &file) { return startsWith(file, "#?"sv); }, nullptr},
    {"psd", 1032, OiioAlpha::Straight, [](const SourceFile &file) { return startsWith(file, "8BPS"sv); },
     nullptr},
    {"gif", 11000, OiioAlpha::Straight,
     [](const SourceFile &file) { return startsWith(file, "GIF87a"sv, "GIF89a"sv); }, nullptr},
    {"webp", 8192, OiioAlpha::Multiplied,
     [](const SourceFile &file) {
         return startsWith(file, "RIFF"sv) && file.head().size() >= kHeaderBytes
             && file.head().substr(8).starts_with("WEBP"sv);
     },
     nullptr},
    {"bmp", 512, OiioAlpha::Straight, [](const SourceFile &file) { return startsWith(file, "BM"sv); },
     nullptr},
    {"sgi", 128, OiioAlpha::AsTold, [](const SourceFile &file) { return startsWith(file, "\x01\xda"sv); },
     nullptr},
    {"pnm", 8, OiioAlpha::AsTold, isPnm, nullptr},
    {"rla", 128, OiioAlpha::AsTold, isRla, nullptr},
    {"targa", 128, OiioAlpha::AsTold, isTarga, nullptr},
}};

} // namespace

const OiioFormat *findFormat(const SourceFile &file)
{
    const auto found = std::find_if(kFormats.begin(), kFormats.end(), [&file](const OiioFormat &format) {
        return extensionsByFormat().contains(format.name) && format.recognises(file);
    });
    return found == kFormats.end() ? nullptr : &*found;
}

const OiioFormat *findFormat(const std::string &name)
{
    const auto found = std::find_if(kFormats.begin(), kFormats.end(),
                                    [&name](const OiioFormat &format) { return name == format.name; });
    return found == kFormats.end() ? nullptr : &*found;
}

std::vector<std::string> oiioExtensions()
{
    std::vector<std::string> all;
    for (const OiioFormat &format : kFormats) {
        const auto found = extensionsByFormat().find(format.name);
        if (found != extensionsByFormat().end())
            all.insert(all.end(), found->second.begin(), found->second.end());
    }
    return all;
}

} // namespace TImageLibrary

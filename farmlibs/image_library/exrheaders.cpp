#include "exrheaders.h"

#include "exrstream.h"
#include "imageerror.h"
#include "sourcefile.h"

#include <ImfVersion.h>

#include <array>
#include <cstdint>
#include <string>

namespace TImageLibrary {

namespace {

constexpr std::size_t kLongestName = 255; // of an attribute or a type

std::int32_t readNumber(ExrStream &stream)
{
    std::array<char, 4> bytes{};
    stream.read(bytes.data(), int(bytes.size()));
    std::uint32_t number = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[i]);
    return std::int32_t(number);
}

/// Cut where it is longer than any.
std::string readName(ExrStream &stream)
{
    std::string name;
    for (char letter = 1; name.size() <= kLongestName;) {
        stream.read(&letter, 1);
        if (letter == 0)
            break;
        name += letter;
    }
    return name;
}

/// False at the end of the headers, or where what follows cannot be followed.
bool checkAttribute(ExrStream &stream, const SourceFile &file, const std::string &name)
{
    if (name.size() > kLongestName || readName(stream).size() > kLongestName)
        return false;
    const std::int32_t size = readNumber(stream);
    if (size < 0 || stream.tellg() > file.size() || std::uint64_t(size) > file.size() - stream.tellg())
        throw ImageError(TLoadFailure::Damaged, "attribute \"" + name + "\" is larger than the file");
    stream.seekg(stream.tellg() + std::uint64_t(size));
    return true;
}

} // namespace

void checkHeaders(const SourceFile &file)
{
    ExrStream stream(file);
    readNumber(stream); // the magic number
    const bool isMultiPart = Imf::isMultiPart(readNumber(stream));
    for (bool isFirst = true; isFirst || isMultiPart; isFirst = false) {
        std::string name = readName(stream);
        if (name.empty())
            return; // an empty header is the end
        for (; !name.empty(); name = readName(stream)) {
            if (!checkAttribute(stream, file, name))
                return;
        }
    }
}

} // namespace TImageLibrary

#include "sourcefile.h"

#include <algorithm>
#include <fstream>
#include <system_error>

namespace TImageLibrary {

namespace {

constexpr std::uint64_t kHeadBytes = 512;
constexpr std::uint64_t kTailBytes = 26;
constexpr std::uint64_t kAlwaysBelieved = std::uint64_t(64) << 20;

std::string lowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
    return text;
}

std::string extensionOf(const std::filesystem::path &path)
{
    const std::u8string extension = path.extension().u8string();
    return extension.empty() ? std::string() : lowerCase({extension.begin() + 1, extension.end()});
}

} // namespace

std::optional<SourceFile> SourceFile::open(const char *path)
{
    if (!path)
        return std::nullopt;
    SourceFile file;
    file.m_path = path;
    file.m_nativePath = std::u8string(file.m_path.begin(), file.m_path.end());
    std::error_code error;
    // Opening a pipe would wait for its writer.
    if (!std::filesystem::is_regular_file(file.m_nativePath, error))
        return std::nullopt;
    file.m_size = std::filesystem::file_size(file.m_nativePath, error);
    if (error)
        return std::nullopt;
    file.m_head = file.bytes(0, std::min(file.m_size, kHeadBytes));
    const std::uint64_t tail = std::min(file.m_size, kTailBytes);
    file.m_tail = file.bytes(file.m_size - tail, tail);
    file.m_extension = extensionOf(file.m_nativePath);
    if (file.m_head.empty())
        return std::nullopt;
    return file;
}

std::string SourceFile::bytes(std::uint64_t offset, std::uint64_t count) const
{
    std::string result(count, '\0');
    std::ifstream stream(m_nativePath, std::ios::binary);
    stream.seekg(std::streamoff(offset));
    stream.read(result.data(), std::streamsize(count));
    return stream ? result : std::string();
}

std::string SourceFile::contents() const
{
    return bytes(0, m_size);
}

bool SourceFile::canHold(std::uint64_t pixelBytes, std::uint64_t expansion) const
{
    return pixelBytes <= kAlwaysBelieved || (pixelBytes - kAlwaysBelieved) / expansion <= m_size;
}

} // namespace TImageLibrary

#include "sourcefile.h"

#include "imageerror.h"

#include <algorithm>
#include <cerrno>
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

[[noreturn]] void fail(const std::error_code &error)
{
    const bool forbidden =
        error == std::errc::permission_denied || error == std::errc::operation_not_permitted;
    throw ImageError(forbidden ? TLoadFailure::Forbidden : TLoadFailure::Unsupported,
                     forbidden   ? "permission denied"
                         : error ? error.message()
                                 : "cannot be read");
}

} // namespace

SourceFile SourceFile::open(const char *path)
{
    SourceFile file;
    file.m_path = path ? path : "";
    file.m_nativePath = std::u8string(file.m_path.begin(), file.m_path.end());
    std::error_code error;
    // Opening a pipe would wait for its writer.
    const auto type = std::filesystem::status(file.m_nativePath, error).type();
    if (type == std::filesystem::file_type::not_found)
        throw ImageError(TLoadFailure::Missing, "no such file");
    if (type == std::filesystem::file_type::none)
        fail(error);
    if (type != std::filesystem::file_type::regular)
        throw ImageError(TLoadFailure::NoImage, "not a file");
    file.m_size = std::filesystem::file_size(file.m_nativePath, error);
    if (error)
        fail(error);
    if (file.m_size == 0)
        throw ImageError(TLoadFailure::Damaged, "the file is empty");
    file.m_head = file.beginning(kHeadBytes);
    if (file.m_head.empty())
        fail(std::error_code(errno, std::generic_category()));
    const std::uint64_t tail = std::min(file.m_size, kTailBytes);
    file.m_tail = file.bytes(file.m_size - tail, tail);
    file.m_extension = extensionOf(file.m_nativePath);
    return file;
}

std::string SourceFile::bytes(std::uint64_t offset, std::uint64_t count) const
{
    std::string result(count, '\0');
    errno = 0;
    std::ifstream stream(m_nativePath, std::ios::binary);
    stream.seekg(std::streamoff(offset));
    stream.read(result.data(), std::streamsize(count));
    return stream ? result : std::string();
}

std::string SourceFile::contents() const
{
    return bytes(0, m_size);
}

std::string SourceFile::beginning(std::uint64_t count) const
{
    return bytes(0, std::min(m_size, count));
}

bool SourceFile::canHold(std::uint64_t pixelBytes, std::uint64_t expansion) const
{
    return pixelBytes <= kAlwaysBelieved || (pixelBytes - kAlwaysBelieved) / expansion <= m_size;
}

} // namespace TImageLibrary

#include "sourcefile.h"

#include "imageerror.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

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

std::filesystem::path nativePath(const std::string &path)
{
    return std::u8string(path.begin(), path.end());
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
    file.m_nativePath = nativePath(file.m_path);
    std::error_code error;
    // Opening a pipe would wait for its writer.
    const auto type = std::filesystem::status(file.m_nativePath, error).type();
    if (type == std::filesystem::file_type::not_found)
        throw ImageError(TLoadFailure::Missing, "no such file");
    if (type == std::filesystem::file_type::none)
        fail(error);
    if (type != std::filesystem::file_type::regular)
        throw ImageError(TLoadFailure::NoImage, "not a file");
    const auto state = OpenFile::stateOf(file.m_nativePath);
    errno = 0;
    file.m_file = std::make_shared<const OpenFile>(file.m_nativePath);
    if (!state || !file.m_file->isOpen())
        fail(std::error_code(errno, std::generic_category()));
    file.m_state = *state;
    if (file.size() == 0)
        throw ImageError(TLoadFailure::Damaged, "the file is empty");
    file.m_head = file.beginning(kHeadBytes);
    if (file.m_head.empty())
        fail(std::error_code(errno, std::generic_category()));
    const std::uint64_t tail = std::min(file.size(), kTailBytes);
    file.m_tail = file.bytes(file.size() - tail, tail);
    file.m_extension = extensionOf(file.m_nativePath);
    return file;
}

void SourceFile::announce(const std::string &path)
{
    OpenFile::announce(nativePath(path));
}

bool SourceFile::isStill(const char *path) const
{
    return path && m_path == path && OpenFile::stateOf(m_nativePath) == m_state;
}

std::size_t SourceFile::read(std::uint64_t offset, void *buffer, std::size_t count) const
{
    const std::size_t done = m_file->read(offset, buffer, count);
    if (!m_patch)
        return done;
    const std::uint64_t begin = std::max(offset, m_patch->place);
    const std::uint64_t end = std::min(offset + done, m_patch->place + m_patch->bytes.size());
    if (begin < end)
        m_patch->bytes.copy(static_cast<char *>(buffer) + (begin - offset), end - begin,
                            begin - m_patch->place);
    return done;
}

SourceFile SourceFile::patched(std::uint64_t place, std::string bytes) const
{
    SourceFile other = *this;
    other.m_patch = std::make_shared<const Patch>(Patch{place, std::move(bytes)});
    return other;
}

std::string SourceFile::bytes(std::uint64_t offset, std::uint64_t count) const
{
    std::string result(count, '\0');
    return read(offset, result.data(), result.size()) == result.size() ? result : std::string();
}

std::string SourceFile::contents() const
{
    return bytes(0, size());
}

std::string SourceFile::beginning(std::uint64_t count) const
{
    return bytes(0, std::min(size(), count));
}

bool SourceFile::canHold(std::uint64_t pixelBytes, std::uint64_t expansion) const
{
    return pixelBytes <= kAlwaysBelieved || (pixelBytes - kAlwaysBelieved) / expansion <= size();
}

} // namespace TImageLibrary

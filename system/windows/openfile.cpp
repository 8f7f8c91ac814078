#include <system/openfile.h>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <algorithm>

std::optional<OpenFile::State> OpenFile::stateOf(const std::filesystem::path &path)
{
    WIN32_FILE_ATTRIBUTE_DATA found{};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &found)
        || (found.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0)
        return std::nullopt;
    const auto joined = [](DWORD high, DWORD low) { return (std::uint64_t(high) << 32) | low; };
    const FILETIME &changed = found.ftLastWriteTime;
    return State{joined(found.nFileSizeHigh, found.nFileSizeLow),
                 std::int64_t(joined(changed.dwHighDateTime, changed.dwLowDateTime)), 0};
}

void OpenFile::announce(const std::filesystem::path &) { }

OpenFile::OpenFile(const std::filesystem::path &path)
    : m_handle(reinterpret_cast<std::intptr_t>(
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)))
{ }

OpenFile::~OpenFile()
{
    if (isOpen())
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
}

std::size_t OpenFile::read(std::uint64_t offset, void *buffer, std::size_t count) const
{
    constexpr std::size_t kMost = std::size_t(1) << 30;
    std::size_t done = 0;
    while (done < count) {
        OVERLAPPED place{};
        place.Offset = DWORD((offset + done) & 0xffffffffU);
        place.OffsetHigh = DWORD((offset + done) >> 32);
        DWORD got = 0;
        if (!ReadFile(reinterpret_cast<HANDLE>(m_handle), static_cast<char *>(buffer) + done,
                      DWORD(std::min(count - done, kMost)), &got, &place)
            || got == 0)
            break;
        done += got;
    }
    return done;
}

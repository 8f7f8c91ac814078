#include <system/openfile.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>

std::optional<OpenFile::State> OpenFile::stateOf(const std::filesystem::path &path)
{
    struct stat found { };
    if (::stat(path.c_str(), &found) != 0 || !S_ISREG(found.st_mode))
        return std::nullopt;
#ifdef __APPLE__
    const timespec &changed = found.st_mtimespec;
#else
    const timespec &changed = found.st_mtim;
#endif
    return State{std::uint64_t(found.st_size),
                 std::int64_t(changed.tv_sec) * 1'000'000'000 + std::int64_t(changed.tv_nsec),
                 std::uint64_t(found.st_ino)};
}

void OpenFile::announce(const std::filesystem::path &path)
{
#ifdef POSIX_FADV_WILLNEED
    if (!stateOf(path))
        return;
    const OpenFile file(path);
    if (file.isOpen())
        ::posix_fadvise(int(file.m_handle), 0, 0, POSIX_FADV_WILLNEED);
#else
    static_cast<void>(path);
#endif
}

OpenFile::OpenFile(const std::filesystem::path &path)
    : m_handle(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
{ }

OpenFile::~OpenFile()
{
    if (isOpen())
        ::close(int(m_handle));
}

std::size_t OpenFile::read(std::uint64_t offset, void *buffer, std::size_t count) const
{
    std::size_t done = 0;
    while (done < count && offset + done <= std::uint64_t(std::numeric_limits<off_t>::max())) {
        const ssize_t got =
            ::pread(int(m_handle), static_cast<char *>(buffer) + done, count - done, off_t(offset + done));
        if (got == 0 || (got < 0 && errno != EINTR))
            break;
        done += got > 0 ? std::size_t(got) : 0;
    }
    return done;
}

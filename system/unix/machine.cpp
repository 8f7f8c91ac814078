#include <system/machine.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <system_error>

#include <pwd.h>
#include <sys/resource.h>
#include <unistd.h>

std::filesystem::path Machine::userSettingsFolder()
{
    const char *home = std::getenv("HOME");
    if (!home || *home != '/') {
        const passwd *user = getpwuid(getuid());
        home = user ? user->pw_dir : nullptr;
    }
    return home ? std::filesystem::path(home) : std::filesystem::path();
}

std::filesystem::path Machine::sharedSettingsFolder()
{
    return "/etc";
}

std::filesystem::path Machine::userStateFolder()
{
    const char *set = std::getenv("XDG_STATE_HOME");
    if (set && *set == '/')
        return set;
    const std::filesystem::path home = userSettingsFolder();
    return home.empty() ? home : home / ".local" / "state";
}

std::filesystem::path Machine::executable()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

std::string Machine::hostName()
{
    // A name that does not fit may come without its end: the last byte stays zero.
    std::array<char, 256> buffer{};
    if (gethostname(buffer.data(), buffer.size() - 1) != 0)
        return {};
    return buffer.data();
}

std::uint64_t Machine::memorySize()
{
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long size = sysconf(_SC_PAGESIZE);
    return pages > 0 && size > 0 ? std::uint64_t(pages) * std::uint64_t(size) : 0;
}

void Machine::giveWay()
{
#ifdef __linux__
    // Only here a thread has a priority of its own.
    constexpr int kLower = 2;
    setpriority(PRIO_PROCESS, 0, getpriority(PRIO_PROCESS, 0) + kLower);
#endif
}

std::chrono::milliseconds Machine::timeAsleep()
{
#ifdef CLOCK_BOOTTIME
    // The one goes on while the machine sleeps, the other does not.
    timespec always{};
    timespec awake{};
    if (clock_gettime(CLOCK_MONOTONIC, &awake) == 0 && clock_gettime(CLOCK_BOOTTIME, &always) == 0)
        return std::chrono::milliseconds((always.tv_sec - awake.tv_sec) * 1000
                                         + (always.tv_nsec - awake.tv_nsec) / 1'000'000);
#endif
    return {};
}

std::string Machine::platformName()
{
    return "linux";
}

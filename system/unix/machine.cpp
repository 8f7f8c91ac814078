#include <system/machine.h>

#include <array>
#include <cstdlib>
#include <system_error>

#include <pwd.h>
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

std::string Machine::platformName()
{
    return "linux";
}

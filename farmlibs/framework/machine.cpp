#include "machine.h"

#include "nativepath.h"

#include <array>
#include <cstdlib>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <pwd.h>
#include <unistd.h>
#endif

namespace TFramework::Machine {

#ifdef _WIN32

namespace {

std::filesystem::path environmentFolder(const wchar_t *variable)
{
    const wchar_t *value = _wgetenv(variable);
    return value ? std::filesystem::path(value) : std::filesystem::path();
}

} // namespace

std::filesystem::path userSettingsFolder()
{
    return environmentFolder(L"APPDATA");
}

std::filesystem::path sharedSettingsFolder()
{
    return environmentFolder(L"PROGRAMDATA");
}

std::filesystem::path executable()
{
    std::array<wchar_t, 32768> buffer{};
    const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    return length < buffer.size() ? std::filesystem::path(buffer.data(), buffer.data() + length)
                                  : std::filesystem::path();
}

std::string hostName()
{
    std::array<wchar_t, 256> buffer{};
    DWORD length = static_cast<DWORD>(buffer.size());
    if (!GetComputerNameExW(ComputerNameDnsHostname, buffer.data(), &length))
        return {};
    return fromNativePath(std::filesystem::path(buffer.data(), buffer.data() + length));
}

#else

std::filesystem::path userSettingsFolder()
{
    const char *home = std::getenv("HOME");
    if (!home || *home != '/') {
        const passwd *user = getpwuid(getuid());
        home = user ? user->pw_dir : nullptr;
    }
    return home ? std::filesystem::path(home) : std::filesystem::path();
}

std::filesystem::path sharedSettingsFolder()
{
    return "/etc";
}

std::filesystem::path executable()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

std::string hostName()
{
    // A name that does not fit may come without its end: the last byte stays zero.
    std::array<char, 256> buffer{};
    if (gethostname(buffer.data(), buffer.size() - 1) != 0)
        return {};
    return buffer.data();
}

#endif

} // namespace TFramework::Machine

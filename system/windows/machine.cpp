#include <system/machine.h>

#include <windows.h>

#include <array>
#include <cstdlib>
#include <string_view>

namespace {

std::filesystem::path environmentFolder(const wchar_t *variable)
{
    const wchar_t *value = _wgetenv(variable);
    return value ? std::filesystem::path(value) : std::filesystem::path();
}

std::string utf8(std::wstring_view text)
{
    const int length = int(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(std::size_t(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

} // namespace

std::filesystem::path Machine::userSettingsFolder()
{
    return environmentFolder(L"APPDATA");
}

std::filesystem::path Machine::sharedSettingsFolder()
{
    return environmentFolder(L"PROGRAMDATA");
}

std::filesystem::path Machine::userStateFolder()
{
    return environmentFolder(L"LOCALAPPDATA");
}

std::filesystem::path Machine::executable()
{
    std::array<wchar_t, 32768> buffer{};
    const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    return length < buffer.size() ? std::filesystem::path(buffer.data(), buffer.data() + length)
                                  : std::filesystem::path();
}

std::string Machine::hostName()
{
    std::array<wchar_t, 256> buffer{};
    DWORD length = static_cast<DWORD>(buffer.size());
    if (!GetComputerNameExW(ComputerNameDnsHostname, buffer.data(), &length))
        return {};
    return utf8({buffer.data(), length});
}

std::uint64_t Machine::memorySize()
{
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    return GlobalMemoryStatusEx(&status) ? status.ullTotalPhys : 0;
}

void Machine::giveWay()
{
    SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
}

std::chrono::milliseconds Machine::timeAsleep()
{
    ULONGLONG awake = 0; // in 100 ns
    if (!QueryUnbiasedInterruptTime(&awake))
        return {};
    return std::chrono::milliseconds(static_cast<long long>(GetTickCount64() - awake / 10'000));
}

std::string Machine::platformName()
{
    return "windows";
}

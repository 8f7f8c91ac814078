#include <system/tdesktop.h>

#include <windows.h>

#include <shellapi.h>

#include <string>

namespace {

constexpr LONG kShadowAndDoubleClicks = 0x20008; // CS_DROPSHADOW | CS_DBLCLKS
constexpr std::intptr_t kLastShellError = 32;

std::wstring wide(const std::string &text)
{
    const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), int(text.size()), nullptr, 0);
    std::wstring result(std::size_t(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), int(text.size()), result.data(), size);
    return result;
}

} // namespace

bool TDesktop::SetProcessDpiUnaware()
{
    const HMODULE library = LoadLibraryW(L"Shcore.dll");
    if (!library)
        return true;
    using SetAwareness = HRESULT(WINAPI *)(int);
    const auto setAwareness = reinterpret_cast<SetAwareness>(
        reinterpret_cast<void *>(GetProcAddress(library, "SetProcessDpiAwareness")));
    const bool done = !setAwareness || setAwareness(0) == 0;
    FreeLibrary(library);
    return done;
}

void TDesktop::AddDropShadow(std::uintptr_t nativeWindow)
{
    SetClassLongW(reinterpret_cast<HWND>(nativeWindow), GCL_STYLE, kShadowAndDoubleClicks);
}

TDesktop::Opened TDesktop::OpenPath(const std::string &path)
{
    const HINSTANCE result =
        ShellExecuteW(nullptr, nullptr, wide(path).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<std::intptr_t>(result) > kLastShellError ? Opened::Yes : Opened::No;
}

int TDesktop::TerminationDescriptor()
{
    return -1;
}

void TDesktop::OpenStandardStreams() { }

void TDesktop::ReturnFreedMemory() { }

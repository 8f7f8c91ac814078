#pragma once

#include <cstdint>
#include <string>

/// The calls to the desktop's own system that the toolkit has no word for. Where a system knows nothing of the kind,
/// the call does nothing.
namespace TDesktop {

/// Asks that the system scale the program's windows (Windows: "not DPI aware"). False when the system refused.
bool SetProcessDpiUnaware();

/// Gives the class of a native window the system's drop shadow and double clicks.
void AddDropShadow(std::uintptr_t nativeWindow);

/// What the system did of a request to open a path with its default application.
enum class Opened { Yes, No, NotHere };

/// Opens a path (UTF-8) in its default application; a folder opens in the file browser. NotHere: this system has no
/// such call, the toolkit's is to be used.
Opened OpenPath(const std::string &path);

/// Makes a descriptor readable when the system asks the program to end (SIGTERM, SIGINT, SIGHUP); the same signal
/// once more ends the program at once. -1 where the system asks in other ways. Call it once.
int TerminationDescriptor();

/// Gives standard streams that were closed at the start something to stand on, so that no file or socket takes their
/// numbers.
void OpenStandardStreams();

/// Hands freed memory back to the system, where the library would keep it for a program that may never need it again.
void ReturnFreedMemory();

} // namespace TDesktop

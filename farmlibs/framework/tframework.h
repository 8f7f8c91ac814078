#pragma once

#include <string>

/// The farm's base library: start and stop, named contexts shared between libraries, facts about this machine.
/// All texts are UTF-8. Functions report failure by their result and never throw.
namespace TFramework {

/// Notes the program's path, from which GetModuleBasePath() is derived. False when called twice without a shutdown.
bool InitializeLibrary(const char *argv0);

/// Forgets the program's path and every context.
void ShutdownLibrary();

/// Shares an object under a name with the other libraries; null takes the name back. The object is not owned.
void SetLibraryContext(const char *name, void *context);

/// Gives the object shared under the name, null when there is none.
void *GetLibraryContext(const char *name);

/// Gives the folder of the running program without a trailing separator; empty before InitializeLibrary().
std::string GetModuleBasePath();

/// Gives the host name of this machine; empty when the system does not tell.
std::string GetHostName();

} // namespace TFramework

#include "nativepath.h"
#include "tframework.h"

#include <system/machine.h>

#include <map>
#include <system_error>

namespace TFramework {

namespace {

struct Library {
    bool initialized = false;
    std::string basePath;
    std::map<std::string, void *, std::less<>> contexts;
};

Library &library()
{
    static Library instance;
    return instance;
}

/// The program's own path with links followed, so that a link to the program still finds what lies beside it.
std::filesystem::path programPath(const std::string &argv0)
{
    // A bare name was looked up on the search path: it says nothing about the folder.
    if (argv0.find_first_of(kSeparators) == std::string::npos)
        return Machine::executable();
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(toNativePath(argv0), error);
    const std::filesystem::path real = std::filesystem::weakly_canonical(path, error);
    return error ? path : real;
}

} // namespace

bool InitializeLibrary(const char *argv0)
{
    if (library().initialized)
        return false;
    library().initialized = true;
    library().basePath = fromNativePath(programPath(argv0 ? argv0 : "").parent_path());
    return true;
}

void ShutdownLibrary()
{
    library() = {};
}

void SetLibraryContext(const char *name, void *context)
{
    if (!name)
        return;
    if (context)
        library().contexts.insert_or_assign(name, context);
    else
        library().contexts.erase(name);
}

void *GetLibraryContext(const char *name)
{
    if (!name)
        return nullptr;
    const auto &contexts = library().contexts;
    const auto found = contexts.find(name);
    return found == contexts.end() ? nullptr : found->second;
}

std::string GetModuleBasePath()
{
    return library().basePath;
}

std::string GetHostName()
{
    return Machine::hostName();
}

} // namespace TFramework

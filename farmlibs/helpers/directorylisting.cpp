#include "directorylisting.h"

#include <framework/filesystem.h>

#include <algorithm>

using TFramework::TFileSystem;

std::vector<std::string> FarmHelpers::listDirectory(const std::string &folder)
{
    std::vector<std::string> names;
    std::string name;
    TFramework::TDirectoryEnumeration *enumeration = TFileSystem::EnumDirFirstFile(folder, name);
    for (bool more = enumeration; more; more = TFileSystem::EnumDirNextFile(enumeration, name))
        names.push_back(name);
    if (enumeration)
        TFileSystem::EnumDirClose(enumeration);
    std::sort(names.begin(), names.end());
    return names;
}

#include "filesystem.h"

#include "nativepath.h"

#include <system/machine.h>

#include <algorithm>
#include <system_error>
#include <utility>

namespace TFramework {

struct TDirectoryEnumeration {
    std::filesystem::directory_iterator entry;
};

std::string TFileSystem::GetAppSettingsFolder(bool user)
{
    std::filesystem::path folder = user ? Machine::userSettingsFolder() : Machine::sharedSettingsFolder();
    while (!folder.has_filename() && folder.has_relative_path())
        folder = folder.parent_path();
    return fromNativePath(folder);
}

std::string TFileSystem::JoinPath(const std::string &folder, const std::string &name)
{
    if (folder.empty() || name.empty())
        return folder + name;
    const std::size_t folderEnd = folder.find_last_not_of(kSeparators) + 1;
    const std::size_t nameBegin = std::min(name.find_first_not_of(kSeparators), name.size());
    return folder.substr(0, folderEnd) + kSeparators.back() + name.substr(nameBegin);
}

bool TFileSystem::MakeDirectory(const std::string &path, bool recursive)
{
    const std::filesystem::path folder = toNativePath(path);
    std::error_code error;
    if (recursive)
        std::filesystem::create_directories(folder, error);
    else
        std::filesystem::create_directory(folder, error);
    return std::filesystem::is_directory(folder, error);
}

std::string TFileSystem::GetFilePath(const std::string &path)
{
    return fromNativePath(toNativePath(path).parent_path());
}

bool TFileSystem::CheckFile(const std::string &path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(toNativePath(path), error);
}

TDirectoryEnumeration *TFileSystem::EnumDirFirstFile(const std::string &folder, std::string &name)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(toNativePath(folder), error);
    if (error || entry == std::filesystem::directory_iterator())
        return nullptr;
    name = fromNativePath(entry->path().filename());
    return new TDirectoryEnumeration{std::move(entry)};
}

bool TFileSystem::EnumDirNextFile(TDirectoryEnumeration *enumeration, std::string &name)
{
    const std::filesystem::directory_iterator end;
    if (!enumeration || enumeration->entry == end)
        return false;
    std::error_code error;
    enumeration->entry.increment(error);
    if (error || enumeration->entry == end)
        return false;
    name = fromNativePath(enumeration->entry->path().filename());
    return true;
}

void TFileSystem::EnumDirClose(TDirectoryEnumeration *enumeration)
{
    delete enumeration;
}

} // namespace TFramework

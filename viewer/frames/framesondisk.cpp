#include "framesondisk.h"

#include <framework/filesystem.h>
#include <helpers/directorylisting.h>
#include <image_library/iimagecore.h>

#include <algorithm>
#include <utility>

using TFramework::TFileSystem;

namespace {

bool isImage(const std::string &path)
{
    return TFileSystem::CheckFile(path) && TImageLibrary::IImageCore::Probe(path.c_str());
}

} // namespace

std::optional<std::int32_t> firstFrameOnDisk(const std::string &mask)
{
    std::optional<std::int32_t> first;
    const std::string folder = TFileSystem::GetFilePath(mask);
    for (const std::string &name : FarmHelpers::listDirectory(folder.empty() ? "." : folder)) {
        const std::string path = TFileSystem::JoinPath(folder, name);
        std::int32_t frame = 0;
        const bool isFrame = !TFileSystem::GetSequenceMask(path, true, frame).empty()
            && TFileSystem::GetFileFromMask(mask, frame) == path && TFileSystem::CheckFile(path);
        if (isFrame)
            first = std::min(first.value_or(frame), frame);
    }
    return first;
}

std::string firstImageOf(const std::string &folder)
{
    std::string single;
    for (const std::string &name : FarmHelpers::listDirectory(folder)) {
        std::string path = TFileSystem::JoinPath(folder, name);
        std::int32_t frame = 0;
        const bool isNumbered = !TFileSystem::GetSequenceMask(path, true, frame).empty();
        if ((!isNumbered && !single.empty()) || !isImage(path))
            continue;
        if (isNumbered)
            return path;
        single = std::move(path);
    }
    return single;
}

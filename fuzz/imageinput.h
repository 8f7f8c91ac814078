#pragma once

#include "fuzzing.h"

#include <helpers/imagepointer.h>
#include <image_library/iimagecore.h>

#include <sanitizer/asan_interface.h>

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <string>

/// Loads an input as an image file, all its layers and its default one, whole and in part, and looks that every plane is
/// there to its end.
class ImageInput final {
public:
    /// The name's extension decides where an old format has no signature.
    explicit ImageInput(const char *name)
        : m_path(std::filesystem::temp_directory_path() / (std::to_string(getpid()) + name))
    { }
    ~ImageInput() { std::filesystem::remove(m_path); }

    void load(const std::uint8_t *data, std::size_t size) const
    {
        write(data, size);
        const char *format = TImageLibrary::IImageCore::Probe(m_path.c_str());
        std::set<std::string> names;
        const bool listed = TImageLibrary::IImageCore::LoadLayers(m_path.c_str(), format, names);
        require(listed == !names.empty() && (format || !listed));
        read(format, names);
        if (names.size() > 1)
            read(format, {});
        if (listed)
            readPart(format, names);
    }

private:
    void write(const std::uint8_t *data, std::size_t size) const
    {
        const int file = ::open(m_path.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
        require(file >= 0 && ::write(file, data, size) == ssize_t(size) && ::close(file) == 0);
    }

    void read(const char *format, const std::set<std::string> &names) const
    {
        const FarmHelpers::ImagePointer image(
            TImageLibrary::IImageCore::Load(m_path.c_str(), format, names, nullptr, nullptr));
        if (image)
            requirePlanes(*image);
    }

    /// What is told adds up.
    void readPart(const char *format, const std::set<std::string> &names) const
    {
        TImageLibrary::TPartialLoad load;
        const FarmHelpers::ImagePointer image(
            TImageLibrary::IImageCore::LoadPartial(m_path.c_str(), format, names, load));
        if (!image)
            return;
        const std::int64_t sound = load.chunks - load.unwritten - load.damaged;
        requirePlanes(*image);
        require(sound > 0 && load.unwritten >= 0 && load.damaged >= 0);
        require(!load.isWhole || sound == load.chunks);
        for (const auto &box : load.unread)
            require(box.x >= 0 && box.y >= 0 && box.width > 0 && box.height > 0
                    && box.width <= image->GetWidth() - box.x && box.height <= image->GetHeight() - box.y);
    }

    static void requirePlanes(const TImageLibrary::CTImage &image)
    {
        require(image.GetWidth() > 0 && image.GetHeight() > 0);
        for (const auto &layer : image.GetLayers()) {
            for (const auto &channel : layer.GetChannels()) {
                void *plane = const_cast<void *>(channel.GetChannelData());
                require(plane && !__asan_region_is_poisoned(plane, channel.format().byteSize()));
            }
        }
    }

    std::filesystem::path m_path;
};

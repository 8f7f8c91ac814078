#pragma once

#include "fuzzing.h"

#include <iimagecore.h>

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>

/// Loads an input as an image file, all its layers and its default one, and reads every plane to its end.
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
        read(format, {});
    }

private:
    void write(const std::uint8_t *data, std::size_t size) const
    {
        const int file = ::open(m_path.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
        require(file >= 0 && ::write(file, data, size) == ssize_t(size) && ::close(file) == 0);
    }

    void read(const char *format, const std::set<std::string> &names) const
    {
        const auto image = std::unique_ptr<TImageLibrary::CTImage, Destroy>(
            TImageLibrary::IImageCore::Load(m_path.c_str(), format, names, nullptr, nullptr));
        if (!image)
            return;
        unsigned sum = 0;
        for (const auto &layer : image->GetLayers()) {
            for (const auto &channel : layer.GetChannels()) {
                const auto *bytes = static_cast<const unsigned char *>(channel.GetChannelData());
                for (std::size_t i = 0; i < channel.format().byteSize(); ++i)
                    sum += bytes[i];
            }
        }
        require(image->GetWidth() > 0 && image->GetHeight() > 0 && sum + 1 != 0);
    }

    struct Destroy {
        void operator()(TImageLibrary::CTImage *image) const
        {
            TImageLibrary::IImageCore::DestroyImage(image);
        }
    };

    std::filesystem::path m_path;
};

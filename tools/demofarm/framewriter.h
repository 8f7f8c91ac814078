#pragma once

#include "framepainter.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

/// Encodes the frame as an EXR file: R, G, B, A, the layers "diffuse" and "specular", and Z.
std::string encodeExr(const RenderedFrame &frame);

/// Writes a file that gets its name once it is whole. False when it cannot be written.
bool writeWhole(const std::filesystem::path &path, std::string_view bytes);
/// Writes a file that has its name from the start, as many renderers do: some lines at a time, and last of all the table that
/// tells where they are. Ends it, however far it has come, when it dies.
class FrameInTheMaking final {
public:
    FrameInTheMaking(std::filesystem::path path, RenderedFrame frame);
    ~FrameInTheMaking();

    const std::filesystem::path &path() const { return m_path; }
    /// False at the end, and when it cannot be written.
    bool writeMore();

private:
    struct File;

    std::filesystem::path m_path;
    RenderedFrame m_frame;
    std::unique_ptr<File> m_file; // null when it cannot be written
};

#pragma once

#include <system/openfile.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace TImageLibrary {

/// Tells what a regular file is and what it may hold, by its size, its ends and the extension of its name, and reads it.
/// The file stays open while this or a copy lives.
class SourceFile final {
public:
    /// Opens a file. Throws when the path (UTF-8) names no regular file that can be read, or an empty one.
    static SourceFile open(const char *path);

    /// Tells the system that the file, if it is one, will be read soon.
    static void announce(const std::string &path);

    /// Whether the path still names this file, and nothing has been written to it since it was opened.
    bool isStill(const char *path) const;

    const std::string &path() const { return m_path; }
    std::uint64_t size() const { return m_state.size; }
    /// The first bytes, 512 at most.
    std::string_view head() const { return m_head; }
    /// The last bytes, 26 at most.
    std::string_view tail() const { return m_tail; }
    /// In lower case, without the dot.
    const std::string &extension() const { return m_extension; }
    /// The whole file; empty when it cannot be read.
    std::string contents() const;
    /// Its first bytes, `count` at most; empty when it cannot be read.
    std::string beginning(std::uint64_t count) const;
    /// Gives how many bytes were read; any thread may ask.
    std::size_t read(std::uint64_t offset, void *buffer, std::size_t count) const;

    /// The same file with other bytes in one place.
    SourceFile patched(std::uint64_t place, std::string bytes) const;

    /// Whether the file's bytes can hold so many bytes of pixels when a byte of the file makes at most `expansion` of
    /// them. A plain picture shrinks to next to nothing in any format, so an everyday size is believed of every file.
    bool canHold(std::uint64_t pixelBytes, std::uint64_t expansion) const;

private:
    SourceFile() = default;
    std::string bytes(std::uint64_t offset, std::uint64_t count) const;

    /// Bytes that stand in front of the file's own.
    struct Patch {
        std::uint64_t place = 0;
        std::string bytes;
    };

    std::string m_path;
    std::filesystem::path m_nativePath;
    OpenFile::State m_state;
    std::shared_ptr<const OpenFile> m_file;
    std::shared_ptr<const Patch> m_patch; // may be null
    std::string m_head;
    std::string m_tail;
    std::string m_extension;
};

} // namespace TImageLibrary

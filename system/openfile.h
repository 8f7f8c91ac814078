#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>

/// Keeps a file open to be read at any place, from any thread.
class OpenFile final {
public:
    /// Tells a file from another one, and from itself once it has been written to.
    struct State {
        std::uint64_t size = 0;
        std::int64_t changed = 0; ///< in the system's own unit
        std::uint64_t id = 0; ///< 0 where the system gives none without opening the file

        bool operator==(const State &other) const = default;
    };

    /// Nothing unless the path names a regular file.
    static std::optional<State> stateOf(const std::filesystem::path &path);

    /// Has the system fetch a regular file that will be read soon, where it can.
    static void announce(const std::filesystem::path &path);

    /// Does not wait for the writer of a pipe.
    explicit OpenFile(const std::filesystem::path &path);
    ~OpenFile();
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    bool isOpen() const { return m_handle != -1; }
    /// Gives how many bytes were read: fewer at the end of the file, or when it cannot be read.
    std::size_t read(std::uint64_t offset, void *buffer, std::size_t count) const;

private:
    std::intptr_t m_handle = -1;
};

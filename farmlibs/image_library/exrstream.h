#pragma once

#include <ImfIO.h>

#include <array>
#include <cstdint>

namespace TImageLibrary {

class SourceFile;

/// Lets OpenEXR's C++ interface read a file that is open; throws at its end. The file outlives this.
class ExrStream final : public Imf::IStream {
public:
    explicit ExrStream(const SourceFile &file);

    bool read(char bytes[], int count) override;
    std::uint64_t tellg() override { return m_place; }
    void seekg(std::uint64_t place) override { m_place = place; }

private:
    const SourceFile &m_file;
    std::uint64_t m_place = 0;
    // Headers are read a few bytes at a time.
    std::array<char, 4096> m_buffer;
    std::uint64_t m_bufferPlace = 0;
    std::size_t m_bufferSize = 0;
};

} // namespace TImageLibrary
